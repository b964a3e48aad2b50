#pragma once

namespace Vexlor
{

// Sums, differences and products of 32-bit integers that wrap around as two's complement. Documents and hosts
// may give any integer, and signed overflow would be undefined.

constexpr int WrappingSum(int a, int b)
{
    return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}

constexpr int WrappingDifference(int a, int b)
{
    return static_cast<int>(static_cast<unsigned>(a) - static_cast<unsigned>(b));
}

constexpr int WrappingProduct(int a, int b)
{
    return static_cast<int>(static_cast<unsigned>(a) * static_cast<unsigned>(b));
}

} // namespace Vexlor
