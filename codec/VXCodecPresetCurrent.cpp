#include "IVXCodecPreset.h"

#include "IVXChannelLayoutPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFrameratePreset.h"
#include "IVXLevelPreset.h"
#include "IVXProfilePreset.h"
#include "IVXResolutionPreset.h"
#include "IVXSampleratePreset.h"
#include "VXMediaCodecs.h"

namespace Vexlor
{

namespace
{

// The ...At operations do not check their index, so whoever asks for the current entry does.

template <typename Entry>
Entry EntryIn(const IVXCodecPreset& preset, int index, int count, Entry (IVXCodecPreset::*at)(int) const)
{
    return index >= 0 && index < count ? (preset.*at)(index) : nullptr;
}

template <typename Entry>
Entry EntryIn(IVXCodecPreset& preset, int index, int count, Entry (IVXCodecPreset::*at)(int))
{
    return index >= 0 && index < count ? (preset.*at)(index) : nullptr;
}

} // namespace

std::shared_ptr<const IVXResolutionPreset> IVXCodecPreset::CurrentResolution() const
{
    return EntryIn(*this, IndexForResolutionPreset(), ResolutionPresetCount(),
                   &IVXCodecPreset::ResolutionPresetAt);
}

std::shared_ptr<const IVXFrameratePreset> IVXCodecPreset::CurrentFramerate() const
{
    return EntryIn(*this, IndexForFrameratePresets(), FrameratePresetCount(),
                   &IVXCodecPreset::FrameratePresetAt);
}

std::shared_ptr<const IVXCodecQualityPreset> IVXCodecPreset::CurrentCodecQuality() const
{
    return EntryIn(*this, IndexForQualityPresets(), CodecQualityPresetCount(),
                   &IVXCodecPreset::CodecQualityPresetAt);
}

std::shared_ptr<IVXCodecQualityPreset> IVXCodecPreset::CurrentCodecQuality()
{
    return EntryIn(*this, IndexForQualityPresets(), CodecQualityPresetCount(),
                   &IVXCodecPreset::CodecQualityPresetAt);
}

std::shared_ptr<const IVXSampleratePreset> IVXCodecPreset::CurrentSamplerate() const
{
    return EntryIn(*this, IndexForSampleratePresets(), SampleratePresetCount(),
                   &IVXCodecPreset::SampleratePresetAt);
}

std::shared_ptr<const IVXChannelLayoutPreset> IVXCodecPreset::CurrentChannelLayout() const
{
    return EntryIn(*this, IndexForChannelLayoutPresets(), ChannelLayoutPresetCount(),
                   &IVXCodecPreset::ChannelLayoutPresetAt);
}

std::shared_ptr<const IVXProfilePreset> IVXCodecPreset::CurrentPrefile() const
{
    return EntryIn(*this, IndexForProfilesPresets(), ProfilePresetCount(), &IVXCodecPreset::ProfilePresetAt);
}

std::shared_ptr<const IVXLevelPreset> IVXCodecPreset::CurrentLevel() const
{
    return EntryIn(*this, IndexForLevelPresets(), LevelPresetCount(), &IVXCodecPreset::LevelPresetAt);
}

bool IVXCodecPreset::IsAutoValue() const { return CodecID() == VXCodecID_None; }

} // namespace Vexlor
