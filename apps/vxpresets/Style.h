#pragma once

#include <string>

namespace Vexlor::Tool
{

/// How results are dressed. Undressed text is for programs, files and pipes.
struct Style
{
    bool isColoured = false; ///< escape sequences for what stands out
    bool hasLines = false;   ///< rules between the rows and columns of a table
    int width = 0;           ///< columns that a line may take; 0: any number
};

/// The style that standard output can take: dressed and as wide as COLUMNS or the terminal says on one that
/// is not dumb, without colours where the user has set NO_COLOR.
Style StyleOfStandardOutput();

/// The text so that it stands out, where the style allows it.
std::string Strong(const std::string& text, const Style& style);

} // namespace Vexlor::Tool
