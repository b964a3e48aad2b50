#include "Stream.h"

#include "Units.h"

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdio>

namespace Vexlor::Tool
{

namespace
{

std::string NameOrDigits(int number, int unknown, const std::string& name)
{
    if (number == unknown)
        return {};
    return name.empty() ? std::to_string(number) : name;
}

std::string CodecNameOf(const IVXCodecParameter& stream)
{
    return IVXCodecs::DefaultCodecName(stream.GetCodecID(), true);
}

std::vector<Json> Fraction(const IVXRational& fraction)
{
    return JsonElements(fraction.Num(), fraction.Den());
}

Json StartJson(const Stream& stream)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("codec", stream.codec);
    json->SetValueInt("codecID", stream.parameter->GetCodecID());
    return json;
}

void AddBitrates(IVXJsonValue& json, const IVXCodecParameter& stream)
{
    json.SetValueInt("bitrate", stream.GetBitrate());
    json.SetValueInt("maxBitrate", stream.GetMaxBitrate());
    json.SetValueInt("minBitrate", stream.GetMinBitrate());
    json.SetValueInt("bitrateMode", stream.GetBitrateMode());
    json.SetValueString("codecTag", CodecTagText(stream));
}

} // namespace

Streams StreamsOf(const IVXFormatParameter& output)
{
    Streams streams{{output.GetVideoCodecParameter(), {}}, {output.GetAudioCodecParameter(), {}}};
    for (auto* stream : {&streams.video, &streams.audio})
        if (stream->parameter)
            stream->codec = CodecNameOf(*stream->parameter);
    return streams;
}

std::string PixelFormatText(const IVXCodecParameter& video)
{
    return NameOrDigits(video.GetFormat(), VXPixFormat_None, PixFormatName(video.GetFormat()));
}

std::string SampleFormatText(const IVXCodecParameter& audio)
{
    return NameOrDigits(audio.GetFormat(), VXSampleFormat_None, SampleFormatName(audio.GetFormat()));
}

std::string ProfileText(const IVXCodecParameter& stream)
{
    const auto codecs = stream.GetCodecs(true);
    return NameOrDigits(stream.GetProfile(), IVXCodecs::VXProfileUnknown,
                        codecs ? codecs->ProfileName(stream.GetProfile()) : std::string());
}

std::string LevelText(const IVXCodecParameter& stream)
{
    const auto codecs = stream.GetCodecs(true);
    return NameOrDigits(stream.GetLevel(), IVXCodecs::VXLevelUnknown,
                        codecs ? codecs->LevelName(stream.GetLevel()) : std::string());
}

std::string CodecTagText(const IVXCodecParameter& stream)
{
    const std::uint32_t tag = stream.GetCodecTag();
    if (tag == 0)
        return {};
    std::string text;
    for (unsigned shift = 0; shift < 32; shift += 8)
        text += static_cast<char>(tag >> shift & 0xFFU);
    if (std::ranges::all_of(text, [](char letter) { return letter >= ' ' && letter <= '~'; }))
        return text;
    std::array<char, 16> digits{};
    static_cast<void>(std::snprintf(digits.data(), digits.size(), "0x%08X", tag));
    return digits.data();
}

Json VideoJson(const Stream& video)
{
    if (!video.parameter)
        return {};
    const auto& stream = *video.parameter;
    auto json = StartJson(video);
    json->SetValueInt("width", stream.GetWidth());
    json->SetValueInt("height", stream.GetHeight());
    json->SetValueInt("displayWidth", stream.GetDisplayWidth());
    json->SetValueInt("displayHeight", stream.GetDisplayHeight());
    json->SetValueArray("frameRate", Fraction(*stream.GetFrameRate()));
    json->SetValueString("pixelFormat", PixelFormatText(stream));
    json->SetValueString("profile", ProfileText(stream));
    json->SetValueString("level", LevelText(stream));
    json->SetValueArray("sampleAspect", Fraction(*stream.GetAspectRatio()));
    AddBitrates(*json, stream);
    return json;
}

Json AudioJson(const Stream& audio)
{
    if (!audio.parameter)
        return {};
    const auto& stream = *audio.parameter;
    auto json = StartJson(audio);
    json->SetValueInt("sampleRate", stream.GetSampleRate());
    json->SetValueString("channelLayout", LayoutText(stream.GetChannelLayout()));
    json->SetValueInt("channels", std::popcount(stream.GetChannelLayout()));
    json->SetValueString("sampleFormat", SampleFormatText(stream));
    json->SetValueString("profile", ProfileText(stream));
    AddBitrates(*json, stream);
    return json;
}

} // namespace Vexlor::Tool
