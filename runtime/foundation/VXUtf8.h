#pragma once

#include <cstddef>
#include <string_view>

namespace Vexlor
{

/// Length in bytes of the character that text begins with; 0 when it begins with no whole, valid one.
std::size_t Utf8Length(std::string_view text);

} // namespace Vexlor
