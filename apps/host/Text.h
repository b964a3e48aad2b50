#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Vexlor::Tool
{

/// The text with every character that would steer a terminal or break the line, and every byte that is not
/// UTF-8, replaced by U+FFFD. Whatever comes from a document or a file is shown through this.
std::string OneLine(std::string_view text);
/// Columns that the text takes on a terminal, wide and combining characters counted.
int DisplayWidth(std::string_view text);
/// The text followed by blanks up to that many columns.
std::string Padded(const std::string& text, int width);
/// The text cut behind its commas: "a, b" is "a," and "b".
std::vector<std::string> Entries(std::string_view text);
/// The text's entries on lines of at most that many columns; a longer entry has a line of its own.
std::vector<std::string> Wrapped(std::string_view text, int width);
/// The text with ASCII capitals made small.
std::string Folded(std::string_view text);
/// The same without blanks: two texts that people would take for one.
std::string Squeezed(std::string_view text);
/// The text in double quotes, on one line.
std::string Quoted(std::string_view text);
/// The name as a part of a path of names: "\/" for each slash.
std::string PathEscaped(std::string_view name);
/// The parts one after the other with the separator in between.
std::string Joined(const std::vector<std::string>& parts, std::string_view separator);
/// "1 preset", "3 presets".
std::string Counted(int count, const std::string& singular, const std::string& plural);

} // namespace Vexlor::Tool
