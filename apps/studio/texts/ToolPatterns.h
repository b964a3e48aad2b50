#pragma once

#include <array>
#include <span>

namespace Vexlor::Studio
{

/// A text of the tools, the library or the platform beneath, with "%1" for each thing that is told in it.
struct ToolPattern
{
    const char* text;
    int grade = 0; ///< the number of the thing that is a grade of quality; 0 where none is
};

/// The patterns of what matching, converting and files of media tell.
std::span<const ToolPattern> MatchPatterns();
/// The patterns of what documents, checks and imports tell.
std::span<const ToolPattern> DocumentPatterns();
/// All of them.
inline std::array<std::span<const ToolPattern>, 2> ToolPatterns()
{
    return {MatchPatterns(), DocumentPatterns()};
}

} // namespace Vexlor::Studio
