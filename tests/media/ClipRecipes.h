#pragma once

#include <string>
#include <string_view>

namespace Vexlor::Media
{

/// How one clip is made.
struct ClipRecipe
{
    std::string_view name;
    std::string_view picture;                     ///< options of the moving test picture; empty without one
    std::string_view tone;                        ///< options of the test tone; empty without one
    std::string_view arguments;                   ///< what follows, separated by blanks
    void (*finish)(std::string& bytes) = nullptr; ///< changes the file that ffmpeg made
};

/// The recipe of that name. Throws std::invalid_argument when there is none.
const ClipRecipe& FindRecipe(std::string_view name);
/// All of ffmpeg's arguments but the file to write, separated by blanks.
std::string ArgumentsOf(const ClipRecipe& recipe);

} // namespace Vexlor::Media
