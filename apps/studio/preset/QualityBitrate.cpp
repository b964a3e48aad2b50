#include "QualityBitrate.h"

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFrameratePreset.h"
#include "IVXResolutionPreset.h"

#include <utility>

namespace Vexlor::Studio
{

namespace
{

constexpr int kNoBitrate = -1;
constexpr int kUnsetBitrate = 1; // what the library begins with

constexpr std::pair kCommonSize{1920, 1080};
constexpr std::pair kCommonRate{30, 1};

/// Two figures of it are enough for what is to be changed anyway.
int Rounded(int bitrate)
{
    int unit = 1;
    while (bitrate / unit >= 100)
        unit *= 10;
    return bitrate / unit * unit;
}

/// Where the picture is the source's, one as it is common: the largest that is offered would tell too much.
int CommonBitrate(const IVXCodecPreset& codec)
{
    const auto copy = codec.Clone();
    copy->SetIndexForQualityPresets(0);
    if (const auto size = codec.CurrentResolution(); !size || size->IsAutoValue())
    {
        copy->AddResolutionPreset(kCommonSize.first, kCommonSize.second);
        copy->SetIndexForResolutionPreset(copy->ResolutionPresetCount() - 1);
    }
    if (const auto rate = codec.CurrentFramerate(); !rate || rate->IsAutoValue())
    {
        copy->AddFrameratePreset(kCommonRate.first, kCommonRate.second);
        copy->SetIndexForFrameratePresets(copy->FrameratePresetCount() - 1);
    }
    return Rounded(copy->DefaultCodecParameter(kNoBitrate, kNoBitrate)->GetBitrate());
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
        SetOwnBitrate(codec, CommonBitrate(codec));
}

} // namespace Vexlor::Studio
