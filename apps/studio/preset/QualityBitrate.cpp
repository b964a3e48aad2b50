#include "QualityBitrate.h"

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"

namespace Vexlor::Studio
{

namespace
{

constexpr int kNoBitrate = -1;
constexpr int kUnsetBitrate = 1; // what the library begins with

int BitrateOfAuto(const IVXCodecPreset& codec)
{
    const auto copy = codec.Clone();
    copy->SetIndexForQualityPresets(0);
    return copy->DefaultCodecParameter(kNoBitrate, kNoBitrate)->GetBitrate();
}

} // namespace

bool HasOwnBitrate(const IVXCodecPreset& codec)
{
    const auto quality = codec.CurrentCodecQuality();
    return quality && quality->IsCustom();
}

int OwnBitrate(const IVXCodecPreset& codec)
{
    const auto quality = codec.CurrentCodecQuality();
    return quality ? quality->Bitrate() : kNoBitrate;
}

void SetOwnBitrate(IVXCodecPreset& codec, int bitrate)
{
    if (!HasOwnBitrate(codec))
        return;
    const auto quality = codec.CurrentCodecQuality();
    quality->SetBitrate(bitrate);
    quality->SetMinBitrate(bitrate);
}

void ProposeBitrate(IVXCodecPreset& codec)
{
    if (OwnBitrate(codec) == kUnsetBitrate)
        SetOwnBitrate(codec, BitrateOfAuto(codec));
}

} // namespace Vexlor::Studio
