#pragma once

#include "tests/memory/CountedMemory.h"

#include <new>

namespace Vexlor
{

enum class Outcome
{
    Done,
    BadAlloc,
    Swallowed, ///< an allocation was refused and nobody was told
};

/// What comes of the operation; what it makes is dropped when there is memory again.
template <class Operation>
Outcome OutcomeOf(Operation operation, std::size_t granted, Refusal refusal)
{
    decltype(operation()) made;
    const AllocationLimit limit(granted, refusal);
    try
    {
        made = operation();
        return limit.WasReached() ? Outcome::Swallowed : Outcome::Done;
    }
    catch (const std::bad_alloc&)
    {
        return Outcome::BadAlloc;
    }
}

} // namespace Vexlor
