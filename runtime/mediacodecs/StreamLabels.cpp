#include "StreamLabels.h"

#include "BitrateModel.h"
#include "CodecCapabilities.h"
#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "LevelTable.h"
#include "Lookup.h"
#include "ProfileFormats.h"
#include "ProfileTable.h"
#include "VXLevels.h"
#include "VXMediaCodecs.h"

#include <algorithm>

namespace Vexlor
{

namespace
{

// libavcodec's MPEG-2 encoder refuses a level that comes without a profile; its MPEG-4 encoder takes it for
// one of Simple.
int ProfileNeededBy(const IVXCodecParameter& stream)
{
    constexpr int kMain = 4;
    constexpr int kSimple = 0;
    if (stream.GetLevel() == IVXCodecs::VXLevelUnknown)
        return IVXCodecs::VXProfileUnknown;
    switch (stream.GetCodecID())
    {
    case VXCodecID_MPEG2:
        return kMain;
    case VXCodecID_MPEG4:
    case VXCodecID_DIVX:
        return kSimple;
    default:
        return IVXCodecs::VXProfileUnknown;
    }
}

template <class Row>
std::string NameOf(const Row* row)
{
    return row ? std::string(row->name) : std::string("the encoder's choice");
}

template <class Row>
std::string GaveWay(const std::string& label, const Row& wanted, const std::string& what, const Row* taken)
{
    return label + ' ' + std::string(wanted.name) + " cannot hold " + what + "; " + NameOf(taken) +
           " stands in";
}

template <class Row>
std::string NotMade(const std::string& label, const Row& wanted, const Row* taken)
{
    return label + ' ' + std::string(wanted.name) + " is not made; " + NameOf(taken) + " stands in";
}

/// What a profile has to hold: a picture's pixel format or a sound's layout.
struct Content
{
    int codecID;
    int pixelFormat;
    std::uint64_t layout;
    int profileOfBitrate; ///< where profiles have bitrates of their own, so that a grade is one of them
};

bool Holds(int profile, const Content& content)
{
    return FindCodec(content.codecID)->type == VXCodecTypeVideo
               ? ProfileHolds(content.codecID, profile, content.pixelFormat)
               : ProfileHoldsLayout(content.codecID, profile, content.layout);
}

std::string NameOf(const Content& content)
{
    return FindCodec(content.codecID)->type == VXCodecTypeVideo ? PixFormatName(content.pixelFormat)
                                                                : VXChannelLayoutName(content.layout);
}

int BestToHold(const CodecCapabilities& codec, const Content& content)
{
    if (content.profileOfBitrate != IVXCodecs::VXProfileUnknown)
        return content.profileOfBitrate;
    const auto found =
        std::ranges::find_if(codec.profiles, [&](int profile) { return Holds(profile, content); });
    return found == codec.profiles.end() ? IVXCodecs::VXProfileUnknown : *found;
}

const ProfileRow* FindProfile(int codecID, int profile)
{
    return FindRow(ProfilesOf(codecID), &ProfileRow::number, profile);
}

const LevelRow* FindLevel(int codecID, int level)
{
    return FindRow(LevelsOf(codecID), &LevelRow::number, level);
}

void SetProfile(StreamLabels& labels, const CodecCapabilities& codec, int wanted, const Content& content)
{
    const int codecID = codec.codec->id;
    labels.profile = FindProfile(codecID, wanted);
    if (!labels.profile && codec.codec->needsProfile)
        labels.profile = FindProfile(codecID, BestToHold(codec, content));
    if (!labels.profile || Holds(labels.profile->number, content))
        return;
    const auto& refused = *labels.profile;
    labels.profile = FindProfile(codecID, BestToHold(codec, content));
    labels.changes.push_back(GaveWay("profile", refused, NameOf(content), labels.profile));
}

void SetLevel(StreamLabels& labels, int wanted, const VXLevelStream& stream)
{
    labels.level = FindLevel(stream.codecID, wanted);
    if (!labels.level || (!labels.level->onlyRead && LevelHolds(wanted, stream)))
        return;
    const auto& refused = *labels.level;
    const bool isHigh = IsHighTier(wanted) && !refused.onlyRead;
    labels.level =
        FindLevel(stream.codecID, SmallestLevel(stream, isHigh ? VXLevelTiers::Both : VXLevelTiers::Main));
    labels.changes.push_back(refused.onlyRead ? NotMade("level", refused, labels.level)
                                              : GaveWay("level", refused, "the stream", labels.level));
}

VXLevelStream LevelStream(const IVXCodecParameter& stream, const ProfileRow* profile)
{
    VXLevelStream seen;
    seen.codecID = stream.GetCodecID();
    seen.profile = profile ? profile->number : IVXCodecs::VXProfileUnknown;
    seen.width = stream.GetWidth();
    seen.height = stream.GetHeight();
    seen.frameRate = stream.GetFrameRate();
    seen.bitrate = LevelsCountAverage(seen.codecID) ? stream.GetBitrate()
                                                    : std::max(stream.GetBitrate(), stream.GetMaxBitrate());
    return seen;
}

int ProfileOfBitrate(const CodecCapabilities& codec, const IVXCodecParameter& stream, int pixelFormat)
{
    if (stream.GetBitrate() <= 0)
        return IVXCodecs::VXProfileUnknown;
    return ProfileAtBitrate(codec, PictureOf(stream, pixelFormat), stream.GetBitrate());
}

// An encoder that is given no level chooses the lowest.
LevelBounds BoundsOf(const VXLevelStream& stream, const LevelRow* level)
{
    const auto limits =
        LimitsOf(stream.codecID, stream.profile, level ? level->number : SmallestLevel(stream));
    if (!limits)
        return {};
    return {level && !LevelsCountAverage(stream.codecID) ? limits->bitrate : 0, limits->buffer};
}

} // namespace

StreamLabels FittingLabels(const CodecCapabilities& codec, const IVXCodecParameter& stream, int pixelFormat)
{
    StreamLabels labels;
    const bool isOpen = !FindProfile(codec.codec->id, stream.GetProfile());
    const Content content{codec.codec->id, pixelFormat, stream.GetChannelLayout(),
                          ProfileOfBitrate(codec, stream, pixelFormat)};
    SetProfile(labels, codec, isOpen ? ProfileNeededBy(stream) : stream.GetProfile(), content);
    if (isOpen)
        labels.changes.clear(); // nobody asked for the one that gave way
    const auto seen = LevelStream(stream, labels.profile);
    SetLevel(labels, stream.GetLevel(), seen);
    labels.bounds = BoundsOf(seen, labels.level);
    return labels;
}

} // namespace Vexlor
