#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Vexlor
{

/// What a careful, slow reading of a JSON text found that the fast parser refused.
struct JsonScan
{
    /// What is wrong first, in plain words; empty when nothing is.
    std::string reason;
    /// Where, in bytes.
    std::size_t offset = 0;
};

JsonScan ScanJson(std::string_view text);

/// "line:column" of a byte; both count from 1, a column is one character.
std::string JsonPlace(std::string_view text, std::size_t offset);

} // namespace Vexlor
