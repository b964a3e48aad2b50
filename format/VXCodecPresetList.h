#pragma once

#include "presets/VXHandleList.h"

#include "IVXCodecPreset.h"

namespace Vexlor
{

/// The video or the audio codec presets of a format preset, with the index of the current one.
///
/// The index is a position and never follows a preset. Removing keeps it from lying beyond the list, so that
/// it is -1 for an empty one; a negative index of a document is kept and says that nothing is chosen.
class VXCodecPresetList
{
public:
    VXCodecPresetList() = default;
    /// The presets with the first one current.
    explicit VXCodecPresetList(HandleList<IVXCodecPreset> presets);
    /// The presets of a JSON array, with an index that is kept unless it lies beyond them.
    VXCodecPresetList(const IVXJsonValue& array, int index);
    /// A list of the same index that shares no preset with this one.
    VXCodecPresetList Clone() const;
    /// As Clone, of an index and presets that were read from another object; empty handles are left out.
    static VXCodecPresetList CopyOf(int index, const HandleList<const IVXCodecPreset>& presets);

    const HandleList<IVXCodecPreset>& Presets() const { return m_presets; }
    int Count() const { return CountOf(m_presets); }
    std::shared_ptr<IVXCodecPreset> At(int index) const { return EntryAt(m_presets, index); }
    int Index() const { return m_index; }
    /// Stores the index clamped into the list, and answers what was stored.
    int SetIndex(int index);

    std::shared_ptr<IVXCodecPreset> Add(int codecID);
    /// Removes the first preset of that codec.
    void RemoveCodec(int codecID);
    void Remove(int index);
    void Insert(const std::shared_ptr<IVXCodecPreset>& preset, int position);
    void Move(int from, int to) { MoveWithin(m_presets, from, to); }

private:
    void ClampFromAbove();

    HandleList<IVXCodecPreset> m_presets;
    int m_index = -1;
};

} // namespace Vexlor
