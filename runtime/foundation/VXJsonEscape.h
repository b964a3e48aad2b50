#pragma once

#include <string>
#include <string_view>

namespace Vexlor
{

/// Appends text as a JSON string, in its quotes; bytes that are no UTF-8 become U+FFFD.
void AppendJsonString(std::string& out, std::string_view text);

/// Whether text stands in a JSON string as it is.
bool IsPlainJsonText(std::string_view text);

/// The text that AppendJsonString was given, from what stands between the quotes.
std::string UnescapedJsonText(std::string_view text);

} // namespace Vexlor
