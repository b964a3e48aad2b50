#include "Commands.h"

#include "Table.h"
#include "apps/host/Failure.h"
#include "apps/host/Json.h"
#include "apps/host/Stream.h"
#include "apps/host/Text.h"
#include "apps/host/Units.h"

#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/VXMediaFile.h"

#include <array>
#include <span>

namespace Vexlor::Tool
{

namespace
{

using Parameter = IVXCodecParameter;

constexpr auto* kAbsent = "-";

std::string StoredSize(const Parameter& stream) { return SizeText(stream.GetWidth(), stream.GetHeight()); }
std::string DisplaySize(const Parameter& stream)
{
    return SizeText(stream.GetDisplayWidth(), stream.GetDisplayHeight());
}
std::string FrameRate(const Parameter& stream) { return FrameRateText(*stream.GetFrameRate()); }
std::string Aspect(const Parameter& stream) { return RatioText(*stream.GetAspectRatio()); }
std::string Bitrate(const Parameter& stream) { return BitrateText(stream.GetBitrate()); }
std::string MaxBitrate(const Parameter& stream) { return BitrateText(stream.GetMaxBitrate()); }
std::string MinBitrate(const Parameter& stream) { return BitrateText(stream.GetMinBitrate()); }
std::string Layout(const Parameter& stream) { return LayoutText(stream.GetChannelLayout()); }
std::string SampleRate(const Parameter& stream)
{
    return stream.GetSampleRate() < 1 ? std::string() : VXMediaCodecFormatSamplerate(stream.GetSampleRate());
}
std::string BitrateMode(const Parameter& stream)
{
    constexpr int kVariable = 0;
    constexpr int kConstant = 1;
    const int mode = stream.GetBitrateMode();
    return mode == kVariable ? "variable" : mode == kConstant ? "constant" : std::to_string(mode);
}

struct Row
{
    const char* name;
    std::string (*text)(const Parameter&);
};

constexpr std::array kVideoRows{
    Row{"Size", StoredSize},
    Row{"Displayed as", DisplaySize},
    Row{"Frame rate", FrameRate},
    Row{"Pixel format", PixelFormatText},
    Row{"Profile", ProfileText},
    Row{"Level", LevelText},
    Row{"Sample aspect", Aspect},
    Row{"Bitrate", Bitrate},
    Row{"Highest bitrate", MaxBitrate},
    Row{"Lowest bitrate", MinBitrate},
    Row{"Bitrate mode", BitrateMode},
    Row{"Codec tag", CodecTagText},
};

constexpr std::array kAudioRows{
    Row{"Sample rate", SampleRate},
    Row{"Channels", Layout},
    Row{"Sample format", SampleFormatText},
    Row{"Profile", ProfileText},
    Row{"Bitrate", Bitrate},
    Row{"Highest bitrate", MaxBitrate},
    Row{"Lowest bitrate", MinBitrate},
    Row{"Bitrate mode", BitrateMode},
    Row{"Codec tag", CodecTagText},
};

std::string OrAbsent(const std::string& text) { return text.empty() ? kAbsent : text; }

std::string TextOf(const Row& row, const Stream& stream)
{
    return OrAbsent(stream.parameter ? row.text(*stream.parameter) : std::string());
}

void AddRow(Table& table, const char* name, const std::string& source, const std::string& output)
{
    if (source != kAbsent || output != kAbsent)
        table.Add({name, source, {output, source != output}});
}

std::string StreamTable(const char* title, std::span<const Row> rows, const Stream& source,
                        const Stream& output, const Style& style)
{
    if (!source.parameter)
        return Padded(title, 17) + "none in the source\n";
    Table table({title, "Source", "Output"});
    AddRow(table, "Codec", OrAbsent(source.codec), output.parameter ? OrAbsent(output.codec) : "left out");
    for (const auto& row : rows)
        AddRow(table, row.name, TextOf(row, source), TextOf(row, output));
    return table.Text(style);
}

/// A source, and what it becomes.
struct Match
{
    Streams source;
    Streams output;
    std::shared_ptr<const IVXFormatParameter> sourceFile;
    std::shared_ptr<const IVXFormatParameter> outputFile;
};

Match MatchOf(const std::string& media, const IVXFormatPreset& preset)
{
    const auto file = ReadMediaFile(media);
    if (!file.parameter)
        throw Failure(file.error);
    const std::shared_ptr<const IVXFormatParameter> source = file.parameter;
    const std::shared_ptr<const IVXFormatParameter> output = preset.MatchForSource(source);
    return {{{source->GetVideoCodecParameter(), file.videoCodec},
             {source->GetAudioCodecParameter(), file.audioCodec}},
            StreamsOf(*output),
            source,
            output};
}

Json StreamsJson(const Streams& streams)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueObject("video", VideoJson(streams.video));
    json->SetValueObject("audio", AudioJson(streams.audio));
    return json;
}

std::string MatchJson(const Match& match)
{
    const auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("format", match.outputFile->FormatName());
    json->SetValueString("hint", match.outputFile->FormatHint());
    json->SetValueObject("source", StreamsJson(match.source));
    json->SetValueObject("output", StreamsJson(match.output));
    return JsonDocument(*json);
}

std::string MatchText(const Match& match, const std::string& title, const Style& style)
{
    return Strong(title, style) + "\n\n" +
           StreamTable("Video", kVideoRows, match.source.video, match.output.video, style) + '\n' +
           StreamTable("Audio", kAudioRows, match.source.audio, match.output.audio, style);
}

std::string TitleOf(const std::string& name, const IVXFormatParameter& file)
{
    return OneLine(name + " (" + OrAbsent(file.FormatName()) + ')');
}

} // namespace

std::string MatchCommand(const Request& request, const Catalogue& catalogue, const Style& style)
{
    const auto& entry = FindPreset(catalogue, request.preset);
    const auto match = MatchOf(request.media, *entry.preset);
    if (request.asJson)
        return MatchJson(match);
    return MatchText(
        match, TitleOf(request.media, *match.sourceFile) + " -> " + TitleOf(entry.path, *match.outputFile),
        style);
}

} // namespace Vexlor::Tool
