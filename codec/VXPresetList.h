#pragma once

#include "presets/VXValueList.h"

#include <utility>

namespace Vexlor
{

/// One option list of a codec preset: the entries on offer and the index of the current one.
///
/// The index is a position. It never follows an entry and may be stale: nothing but SetIndex keeps it in the
/// list.
template <typename Preset>
class VXPresetList
{
public:
    VXPresetList() = default;
    explicit VXPresetList(HandleList<Preset> entries) : m_entries(std::move(entries)) {}

    const HandleList<Preset>& Entries() const { return m_entries; }
    int Count() const { return CountOf(m_entries); }
    std::shared_ptr<Preset> At(int index) const { return EntryAt(m_entries, index); }
    /// As At, but the caller has checked the index.
    std::shared_ptr<Preset> Unchecked(int index) const { return m_entries[static_cast<std::size_t>(index)]; }
    std::shared_ptr<Preset> Current() const { return At(m_index); }

    void Add(std::shared_ptr<Preset> preset) { m_entries.push_back(std::move(preset)); }
    void Remove(int index) { EraseEntry(m_entries, index); }
    void Reset(HandleList<Preset> entries) { m_entries = std::move(entries); }
    void Insert(const HandleList<Preset>& presets, int position)
    {
        InsertWithin(m_entries, presets, position);
    }
    void Move(int from, int to) { MoveWithin(m_entries, from, to); }

    int Index() const { return m_index; }
    void SetIndex(int index)
    {
        if (Holds(m_entries, index))
            m_index = index;
    }
    /// Takes the index as it is, from a document for example.
    void StoreIndex(int index) { m_index = index; }

    /// A list of the same index that shares no entry with this one.
    VXPresetList Clone() const
    {
        VXPresetList copy(CloneValues(m_entries));
        copy.m_index = m_index;
        return copy;
    }

private:
    HandleList<Preset> m_entries;
    int m_index = 0;
};

} // namespace Vexlor
