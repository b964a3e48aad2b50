#pragma once

#include "IVXJsonValue.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <stdexcept>
#include <vector>

namespace Vexlor
{

/// An ordered list of shared handles, and what every owner of one does with it. Positions count from 0.
template <typename T>
using HandleList = std::vector<std::shared_ptr<T>>;

template <typename T>
int CountOf(const HandleList<T>& list)
{
    return static_cast<int>(list.size());
}

template <typename T>
bool Holds(const HandleList<T>& list, int index)
{
    return index >= 0 && index < CountOf(list);
}

/// The entry at index, or an empty handle.
template <typename T>
std::shared_ptr<T> EntryAt(const HandleList<T>& list, int index)
{
    return Holds(list, index) ? list[static_cast<std::size_t>(index)] : nullptr;
}

template <typename T>
std::vector<std::shared_ptr<const T>> ReadOnly(const HandleList<T>& list)
{
    return {list.begin(), list.end()};
}

template <typename T>
HandleList<T> WithoutEmpty(HandleList<T> list)
{
    std::erase(list, nullptr);
    return list;
}

/// Inserts the entries before position, which must not be beyond the count; empty handles are left out.
template <typename T>
void InsertEntries(HandleList<T>& list, const HandleList<T>& entries, std::size_t position)
{
    const auto present = WithoutEmpty(entries);
    list.insert(list.begin() + static_cast<std::ptrdiff_t>(position), present.begin(), present.end());
}

/// The same for a position from outside: beyond the count, which every negative one is, nothing happens.
template <typename T>
void InsertWithin(HandleList<T>& list, const HandleList<T>& entries, int position)
{
    if (static_cast<std::size_t>(position) <= list.size())
        InsertEntries(list, entries, static_cast<std::size_t>(position));
}

template <typename T>
bool EraseEntry(HandleList<T>& list, int index)
{
    if (!Holds(list, index))
        return false;
    list.erase(list.begin() + index);
    return true;
}

/// Moves the entry at from to just before the one that stands at to, which may be the count.
template <typename T>
void MoveEntry(HandleList<T>& list, std::size_t from, std::size_t to)
{
    if (from >= list.size())
        throw std::out_of_range("invalid vector subscript");
    const auto source = list.begin() + static_cast<std::ptrdiff_t>(from);
    const auto target = list.begin() + static_cast<std::ptrdiff_t>(to);
    if (from < to)
        std::rotate(source, source + 1, target);
    else
        std::rotate(target, source, source + 1);
}

/// The same for positions from outside: beyond the count, which every negative one is, nothing happens.
template <typename T>
void MoveWithin(HandleList<T>& list, int from, int to)
{
    const auto source = static_cast<std::size_t>(from);
    const auto target = static_cast<std::size_t>(to);
    if (source != target && source <= list.size() && target <= list.size())
        MoveEntry(list, source, target);
}

template <typename T>
HandleList<T> CloneEach(const HandleList<T>& list)
{
    HandleList<T> copies;
    copies.reserve(list.size());
    for (const auto& entry : list)
        copies.push_back(entry->Clone());
    return copies;
}

template <typename T>
std::vector<std::shared_ptr<IVXJsonValue>> JsonOfEach(const HandleList<T>& list)
{
    std::vector<std::shared_ptr<IVXJsonValue>> values;
    values.reserve(list.size());
    for (const auto& entry : list)
        values.push_back(entry->JsonValue());
    return values;
}

/// One entry for each element of a JSON array, made by the factory.
template <typename T>
HandleList<T> ReadEach(const IVXJsonValue& array,
                       std::shared_ptr<T> (*factory)(const std::shared_ptr<const IVXJsonValue>&))
{
    const int count = array.Size();
    HandleList<T> list;
    if (count > 0)
        list.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        list.push_back(factory(array.At(i)));
    return list;
}

} // namespace Vexlor
