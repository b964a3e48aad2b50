#include "format/VXCodecPresetList.h"

#include <utility>

namespace Vexlor
{

VXCodecPresetList::VXCodecPresetList(HandleList<IVXCodecPreset> presets)
    : m_presets(std::move(presets)), m_index(m_presets.empty() ? -1 : 0)
{
}

// A negative index of a document is deliberately kept: it says that nothing is chosen.
VXCodecPresetList::VXCodecPresetList(const IVXJsonValue& array, int index)
    : m_presets(ReadEach(array, &IVXCodecPreset::MallocCodecPreset)), m_index(index)
{
    ClampFromAbove();
}

VXCodecPresetList VXCodecPresetList::Clone() const
{
    VXCodecPresetList copy(CloneEach(m_presets));
    copy.m_index = m_index;
    return copy;
}

VXCodecPresetList VXCodecPresetList::CopyOf(int index, const HandleList<const IVXCodecPreset>& presets)
{
    VXCodecPresetList copy;
    for (const auto& preset : WithoutEmpty(presets))
        copy.m_presets.push_back(preset->Clone());
    copy.m_index = index;
    return copy;
}

int VXCodecPresetList::SetIndex(int index)
{
    m_index = std::max(index, 0);
    ClampFromAbove();
    return m_index;
}

std::shared_ptr<IVXCodecPreset> VXCodecPresetList::Add(int codecID)
{
    auto preset = IVXCodecPreset::MallocCodecPreset(codecID);
    m_presets.push_back(preset);
    if (m_index == -1)
        m_index = 0;
    return preset;
}

void VXCodecPresetList::RemoveCodec(int codecID)
{
    const auto found = std::ranges::find_if(m_presets, [codecID](const auto& preset)
                                            { return preset->CodecID() == codecID; });
    if (found != m_presets.end())
        m_presets.erase(found);
    ClampFromAbove();
}

void VXCodecPresetList::Remove(int index)
{
    if (EraseEntry(m_presets, index))
        ClampFromAbove();
}

void VXCodecPresetList::Insert(const std::shared_ptr<IVXCodecPreset>& preset, int position)
{
    InsertWithin(m_presets, {preset}, position);
}

void VXCodecPresetList::ClampFromAbove() { m_index = std::min(m_index, Count() - 1); }

} // namespace Vexlor
