#include "MatchValues.h"

#include "apps/host/Stream.h"
#include "apps/host/Units.h"

#include "IVXCodecParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

namespace Vexlor::Tool
{

namespace
{

using Parameter = IVXCodecParameter;

std::string SizeOf(const Parameter& stream) { return SizeText(stream.GetWidth(), stream.GetHeight()); }
std::string DisplaySizeOf(const Parameter& stream)
{
    return SizeText(stream.GetDisplayWidth(), stream.GetDisplayHeight());
}
std::string FrameRateOf(const Parameter& stream) { return FrameRateText(*stream.GetFrameRate()); }
std::string AspectOf(const Parameter& stream) { return RatioText(*stream.GetAspectRatio()); }
std::string BitrateOf(const Parameter& stream) { return BitrateText(stream.GetBitrate()); }
std::string MaxBitrateOf(const Parameter& stream) { return BitrateText(stream.GetMaxBitrate()); }
std::string MinBitrateOf(const Parameter& stream) { return BitrateText(stream.GetMinBitrate()); }
std::string LayoutOf(const Parameter& stream) { return LayoutText(stream.GetChannelLayout()); }
std::string SampleRateOf(const Parameter& stream)
{
    return stream.GetSampleRate() < 1 ? std::string() : VXMediaCodecFormatSamplerate(stream.GetSampleRate());
}
std::string BitrateModeOf(const Parameter& stream)
{
    constexpr int kVariable = 0;
    constexpr int kConstant = 1;
    const int mode = stream.GetBitrateMode();
    return mode == kVariable ? "variable" : mode == kConstant ? "constant" : std::to_string(mode);
}

MatchNumbers Numbers(const IVXRational& ratio) { return {ratio.Num(), ratio.Den()}; }

template <auto kGet>
MatchNumbers Number(const Parameter& stream)
{
    return {static_cast<std::int64_t>((stream.*kGet)()), 0};
}

template <auto kFirst, auto kSecond>
MatchNumbers Pair(const Parameter& stream)
{
    return {(stream.*kFirst)(), (stream.*kSecond)()};
}

constexpr auto kSize = Pair<&Parameter::GetWidth, &Parameter::GetHeight>;
constexpr auto kDisplaySize = Pair<&Parameter::GetDisplayWidth, &Parameter::GetDisplayHeight>;

constexpr MatchRow kProfile{MatchValue::Profile, "Profile", "profile", ProfileText,
                            Number<&Parameter::GetProfile>};
constexpr MatchRow kBitrate{MatchValue::Bitrate, "Bitrate", "bitrate", BitrateOf,
                            Number<&Parameter::GetBitrate>};
constexpr MatchRow kMaxBitrate{MatchValue::MaxBitrate, "Highest bitrate", "maxBitrate", MaxBitrateOf,
                               Number<&Parameter::GetMaxBitrate>};
constexpr MatchRow kMinBitrate{MatchValue::MinBitrate, "Lowest bitrate", "minBitrate", MinBitrateOf,
                               Number<&Parameter::GetMinBitrate>};
constexpr MatchRow kBitrateMode{MatchValue::BitrateMode, "Bitrate mode", "bitrateMode", BitrateModeOf,
                                Number<&Parameter::GetBitrateMode>};
constexpr MatchRow kCodecTag{MatchValue::CodecTag, "Codec tag", "codecTag", CodecTagText,
                             Number<&Parameter::GetCodecTag>};

constexpr std::array kVideoRows{
    MatchRow{MatchValue::Size, "Size", "size", SizeOf, kSize},
    MatchRow{MatchValue::DisplaySize, "Displayed as", "displaySize", DisplaySizeOf, kDisplaySize},
    MatchRow{MatchValue::FrameRate, "Frame rate", "frameRate", FrameRateOf,
             [](const Parameter& stream) { return Numbers(*stream.GetFrameRate()); }},
    MatchRow{MatchValue::Format, "Pixel format", "pixelFormat", PixelFormatText,
             Number<&Parameter::GetFormat>},
    kProfile,
    MatchRow{MatchValue::Level, "Level", "level", LevelText, Number<&Parameter::GetLevel>},
    MatchRow{MatchValue::SampleAspect, "Sample aspect", "sampleAspect", AspectOf,
             [](const Parameter& stream) { return Numbers(*stream.GetAspectRatio()); }},
    kBitrate,
    kMaxBitrate,
    kMinBitrate,
    kBitrateMode,
    kCodecTag,
};

constexpr std::array kAudioRows{
    MatchRow{MatchValue::SampleRate, "Sample rate", "sampleRate", SampleRateOf,
             Number<&Parameter::GetSampleRate>},
    MatchRow{MatchValue::ChannelLayout, "Channels", "channelLayout", LayoutOf,
             Number<&Parameter::GetChannelLayout>},
    MatchRow{MatchValue::Format, "Sample format", "sampleFormat", SampleFormatText,
             Number<&Parameter::GetFormat>},
    kProfile,
    kBitrate,
    kMaxBitrate,
    kMinBitrate,
    kBitrateMode,
    kCodecTag,
};

} // namespace

std::span<const MatchRow> VideoRows() { return kVideoRows; }
std::span<const MatchRow> AudioRows() { return kAudioRows; }

} // namespace Vexlor::Tool
