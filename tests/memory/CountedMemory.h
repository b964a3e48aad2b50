#pragma once

#include <cstddef>

namespace Vexlor
{

/// Bytes that operator new handed out and that did not come back: linking CountedMemory.cpp replaces it for
/// the whole program.
std::size_t BytesInUse();

/// The most bytes that were in use at any time since the last RestartMostBytesInUse.
std::size_t MostBytesInUse();
void RestartMostBytesInUse();

/// What happens to the allocations behind one that is refused.
enum class Refusal
{
    One,           ///< they are granted: memory was short for a moment
    AllThatFollow, ///< they are refused too, while the limit lives
};

/// While it lives, operator new grants so many allocations and refuses the next.
class AllocationLimit
{
public:
    explicit AllocationLimit(std::size_t granted, Refusal refusal = Refusal::AllThatFollow);
    ~AllocationLimit();
    AllocationLimit(const AllocationLimit&) = delete;
    AllocationLimit& operator=(const AllocationLimit&) = delete;

    /// Whether an allocation was refused so far.
    bool WasReached() const;
};

/// The most bytes in use at any time during the operation, beyond those in use before it.
template <class Operation>
std::size_t MostBytesOf(Operation operation)
{
    const auto before = BytesInUse();
    RestartMostBytesInUse();
    operation();
    return MostBytesInUse() - before;
}

/// Runs the operation with memory for so many allocations, and says whether that was enough.
template <class Operation>
bool RunsWithin(std::size_t allocations, Operation operation)
{
    const AllocationLimit limit(allocations);
    operation();
    return !limit.WasReached();
}

} // namespace Vexlor
