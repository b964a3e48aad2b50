#pragma once

#include <set>
#include <span>

namespace Vexlor
{

/// The number of different values that the rows have in one column.
template <class Row, class Value>
std::size_t DifferentValues(std::span<const Row> rows, Value Row::*column)
{
    std::set<Value> values;
    for (const auto& row : rows)
        values.insert(row.*column);
    return values.size();
}

} // namespace Vexlor
