#pragma once

#include "runtime/foundation/VXJsonManyMembers.h"

#include <iterator>
#include <new>
#include <utility>

namespace Vexlor
{

// How deep destructors of values in values may call each other.
inline constexpr int kMostNested = 100;

// False where memory for the list is short.
template <class Take>
bool PutBy(JsonChildren& waiting, Take take) noexcept
{
    try
    {
        auto children = take();
        waiting.insert(waiting.end(), std::move_iterator(children.begin()),
                       std::move_iterator(children.end()));
        return true;
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }
}

/// Drops the children of a value that dies, and never fails. Those of very deep ones are taken instead, and
/// wait for the outermost value on this thread: the stack would not do for all. It has to where memory for
/// those that wait is gone.
template <class Drop, class Take>
void LetGo(Drop drop, Take take) noexcept
{
    thread_local int nested = 0;
    thread_local JsonChildren* waiting = nullptr;
    if (nested >= kMostNested && PutBy(*waiting, take))
        return;
    JsonChildren later;
    if (++nested == 1)
        waiting = &later;
    drop();
    while (!later.empty())
    {
        const JsonChild last = std::move(later.back());
        later.pop_back();
    }
    if (--nested == 0)
        waiting = nullptr;
}

} // namespace Vexlor
