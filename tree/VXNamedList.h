#pragma once

#include "presets/VXHandleList.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace Vexlor
{

/// An ordered list of named objects that a user arranges: what a node does with its format presets and with
/// its children alike.
template <typename T>
class VXNamedList
{
public:
    using Handle = std::shared_ptr<T>;

    const HandleList<T>& Entries() const { return m_entries; }
    int Count() const { return CountOf(m_entries); }
    Handle At(int index) const { return EntryAt(m_entries, index); }

    void Add(Handle entry)
    {
        if (entry)
            m_entries.push_back(std::move(entry));
    }
    void Set(HandleList<T> entries) { m_entries = WithoutEmpty(std::move(entries)); }
    void Insert(const HandleList<T>& entries, int index)
    {
        InsertEntries(m_entries, entries, Clamped(index));
    }
    void Clear() { m_entries.clear(); }

    Handle Find(const std::string& name) const { return At(IndexOfName(name)); }
    int IndexOf(const T* entry) const
    {
        return PositionOf([entry](const Handle& held) { return held.get() == entry; });
    }
    int IndexOfName(const std::string& name) const
    {
        return PositionOf([&name](const Handle& held) { return held->Name() == name; });
    }

    bool RemoveAt(int index) { return EraseEntry(m_entries, index); }
    bool RemoveAt(const std::vector<int>& indices)
    {
        auto parts = Split(indices);
        if (parts.chosen.empty())
            return false;
        m_entries = std::move(parts.kept);
        return true;
    }
    bool RemoveEach(const HandleList<T>& entries)
    {
        bool removed = false;
        for (const auto& entry : entries)
            removed = RemoveAt(IndexOf(entry.get())) || removed;
        return removed;
    }

    void Move(int from, int to) { MoveEntry(m_entries, static_cast<std::size_t>(from), Clamped(to)); }
    /// Moves those at the given positions, in list order, to just before the first other one at or behind to.
    void Move(const std::vector<int>& indices, int to)
    {
        if (to < 0 || to > Count())
            return;
        auto parts = Split(indices, to);
        InsertEntries(parts.kept, parts.chosen, parts.keptBefore);
        m_entries = std::move(parts.kept);
    }

private:
    struct Parts
    {
        HandleList<T> chosen;
        HandleList<T> kept;
        std::size_t keptBefore = 0;
    };

    /// The entries at the given positions and the others, both in list order, and how many of the others lie
    /// before a boundary. Positions that do not exist are ignored, repeated ones count once.
    Parts Split(const std::vector<int>& indices, int boundary = 0) const
    {
        std::vector<bool> isChosen(m_entries.size());
        for (const int index : indices)
            if (Holds(m_entries, index))
                isChosen[static_cast<std::size_t>(index)] = true;
        Parts parts;
        for (std::size_t i = 0; i < m_entries.size(); ++i)
        {
            (isChosen[i] ? parts.chosen : parts.kept).push_back(m_entries[i]);
            if (!isChosen[i] && i < static_cast<std::size_t>(boundary))
                ++parts.keptBefore;
        }
        return parts;
    }

    std::size_t Clamped(int index) const { return static_cast<std::size_t>(std::clamp(index, 0, Count())); }

    template <typename Predicate>
    int PositionOf(Predicate matches) const
    {
        const auto found = std::ranges::find_if(m_entries, matches);
        return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
    }

    HandleList<T> m_entries;
};

} // namespace Vexlor
