#include "bench/Documents.h"

#include "IVXCodecPreset.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

namespace Vexlor::Bench
{

namespace
{

/// What glibc's heap has handed out, its own bytes beside each block included.
double HeapInUse()
{
    const auto heap = ::mallinfo2();
    return static_cast<double>(heap.uordblks) + static_cast<double>(heap.hblkhd);
}

std::size_t ValuesOf(const IVXCodecPreset& codec)
{
    return codec.ResolutionPresets().size() + codec.FrameratePresets().size() +
           codec.CodecQualityPresets().size() + codec.SampleratePresets().size() +
           codec.ChannelLayoutPresets().size() + codec.ProfilePresets().size() + codec.LevelPresets().size() +
           codec.SampleFmtPresets().size() + 1; // the sample aspect
}

std::size_t ValuesOf(const IVXFormatNode& node)
{
    std::size_t values = 0;
    for (int i = 0; i < node.FormatPresetCount(); ++i)
        for (const auto& codecs :
             {node.GetFormatPreset(i)->VideoCodecPresets(), node.GetFormatPreset(i)->AudioCodecPresets()})
            for (const auto& codec : codecs)
                values += ValuesOf(*codec);
    for (const auto& child : node.GetChildList())
        values += ValuesOf(*child);
    return values;
}

void KeepTree(benchmark::State& state)
{
    while (state.KeepRunning())
    {
        const auto& text = DocumentOf(1000);
        const double before = HeapInUse();
        const std::shared_ptr<const IVXFormatNode> tree = IVXFormatNode::MallocFormatNode(ParseJson(text));
        const double bytes = HeapInUse() - before;
        const auto values = static_cast<double>(ValuesOf(*tree));
        state.counters["Values"] = values;
        state.counters["BytesAValue"] = bytes / values;
    }
}
BENCHMARK(KeepTree)->Iterations(1);

} // namespace

} // namespace Vexlor::Bench
