#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{

/// What a careful, slow reading of a JSON text found that the fast parser refused.
struct JsonScan
{
    /// What is wrong first, in plain words; empty when nothing is.
    std::string reason;
    /// Where, in bytes.
    std::size_t offset = 0;
    /// Where the integers end that need more than 64 bits, in bytes, as far as the text was read.
    std::vector<std::size_t> longIntegers;
};

JsonScan ScanJson(std::string_view text);

/// "line:column" of a byte; both count from 1, a column is one character.
std::string JsonPlace(std::string_view text, std::size_t offset);

} // namespace Vexlor
