#include "bench/Documents.h"

#include "IVXCodecParameter.h"
#include "IVXFormatNode.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/foundation/VXJson.h"

#include <benchmark/benchmark.h>
#include <simdjson.h>

namespace Vexlor::Bench
{

namespace
{

std::shared_ptr<const IVXFormatParameter> Source()
{
    auto video = IVXCodecParameter::MallocCodecParamter(VXCodecID_H264);
    video->SetWidth(1920);
    video->SetHeight(1080);
    video->SetFramePerSecond(IVXRational::MallocRational(30000, 1001));
    video->SetFormat(VXPixFormat_YUV420P);
    video->SetBitrate(8'000'000);
    auto audio = IVXCodecParameter::MallocCodecParamter(VXCodecID_AAC);
    audio->SetSampleRate(44100);
    audio->SetChannelLayout(3);
    audio->SetBitrate(128'000);
    auto source = IVXFormatParameter::MallocFormatParameter("MOV", "");
    source->SetVideoCodecParameter(video);
    source->SetAudioCodecParameter(audio);
    return source;
}

void MatchPreset(benchmark::State& state)
{
    const auto source = Source();
    const auto preset = IVXFormatPreset::MallocFormatPreset("MP4", "");
    preset->SetIndexForVideoCodecPresets(1);
    preset->SetIndexForAudioCodecPresets(1);
    while (state.KeepRunning())
        benchmark::DoNotOptimize(preset->MatchForSource(source));
}
BENCHMARK(MatchPreset);

// The container whose preset is as long as the average of all: 8 KB. That of MP4 is twice as long.
void ParsePreset(benchmark::State& state)
{
    const auto preset = IVXFormatPreset::MallocFormatPreset("WEBM", "");
    const simdjson::padded_string text(JsonText(*preset->JsonValue()));
    simdjson::dom::parser parser;
    while (state.KeepRunning())
        benchmark::DoNotOptimize(parser.parse(text).error());
}
BENCHMARK(ParsePreset);

void MatchAll(const IVXFormatNode& node, const std::shared_ptr<const IVXFormatParameter>& source)
{
    for (int i = 0; i < node.FormatPresetCount(); ++i)
        benchmark::DoNotOptimize(node.GetFormatPreset(i)->MatchForSource(source));
    for (int i = 0; i < node.ChildCount(); ++i)
        MatchAll(*node.GetChild(i), source);
}

void MatchCatalogue(benchmark::State& state)
{
    const auto source = Source();
    const std::shared_ptr<const IVXFormatNode> tree = TreeOf(static_cast<int>(state.range(0)));
    while (state.KeepRunning())
        MatchAll(*tree, source);
}
BENCHMARK(MatchCatalogue)->Arg(1000)->Arg(10000);

} // namespace

} // namespace Vexlor::Bench
