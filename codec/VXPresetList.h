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
    explicit VXPresetList(VXValueList<Preset> entries) : m_entries(std::move(entries)) {}

    const VXValueList<Preset>& Entries() const { return m_entries; }
    HandleList<Preset> Handles() const { return m_entries.Handles(); }
    HandleList<const Preset> ReadOnlyHandles() const { return m_entries.template Handles<const Preset>(); }
    int Count() const { return static_cast<int>(m_entries.Count()); }
    std::shared_ptr<Preset> At(int index) const { return Holds(index) ? Unchecked(index) : nullptr; }
    /// As At, but the caller has checked the index.
    std::shared_ptr<Preset> Unchecked(int index) const
    {
        return m_entries.Handle(static_cast<std::size_t>(index));
    }
    std::shared_ptr<Preset> Current() const { return At(m_index); }

    void Add(std::shared_ptr<Preset> preset) { m_entries.Changing().push_back(std::move(preset)); }
    void Remove(int index) { EraseEntry(m_entries.Changing(), index); }
    void Reset(VXValueList<Preset> entries) { m_entries = std::move(entries); }
    void ResetToCopies(HandleList<Preset> entries) { m_entries = CloneValues<Preset>(std::move(entries)); }
    void Insert(const HandleList<Preset>& presets, int position)
    {
        InsertWithin(m_entries.Changing(), presets, position);
    }
    void Move(int from, int to) { MoveWithin(m_entries.Changing(), from, to); }

    int Index() const { return m_index; }
    void SetIndex(int index)
    {
        if (Holds(index))
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
    bool Holds(int index) const { return index >= 0 && index < Count(); }

    // With the attribute the index stands in the padding behind its count.
    [[no_unique_address]] VXValueList<Preset> m_entries;
    int m_index = 0;
};

} // namespace Vexlor
