#include "bench/Documents.h"

#include "IVXFormatNode.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <benchmark/benchmark.h>
#include <simdjson.h>

namespace Vexlor::Bench
{

namespace
{

int PresetsOf(const benchmark::State& state) { return static_cast<int>(state.range(0)); }

/// Destroys a tree while the clock stands. glibc's allocator leaves a part of that to whoever asks for the
/// next large block.
void Destroy(benchmark::State& state, std::shared_ptr<IVXFormatNode> tree)
{
    constexpr std::size_t kLarge = std::size_t{1} << 20;
    state.PauseTiming();
    tree.reset();
    benchmark::DoNotOptimize(std::make_unique_for_overwrite<char[]>(kLarge).get());
    state.ResumeTiming();
}

// The parser is made for each text, as whoever loads one document does.
void ParseText(benchmark::State& state)
{
    const simdjson::padded_string text(DocumentOf(PresetsOf(state)));
    while (state.KeepRunning())
    {
        simdjson::dom::parser parser;
        benchmark::DoNotOptimize(parser.parse(text).error());
    }
}
BENCHMARK(ParseText)->Arg(20)->Arg(1000)->Arg(20000);

void ParseDocument(benchmark::State& state)
{
    const auto& text = DocumentOf(PresetsOf(state));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(ParseJson(text));
}
BENCHMARK(ParseDocument)->Arg(1000);

// As simdjson has its text here, and whoever reads a file: with room behind it, and free to be kept.
std::string TextWithRoom(benchmark::State& state)
{
    state.PauseTiming();
    const auto& text = DocumentOf(PresetsOf(state));
    std::string own;
    own.reserve(text.size() + kJsonRoom);
    own = text;
    state.ResumeTiming();
    return own;
}

void LoadTree(benchmark::State& state)
{
    while (state.KeepRunning())
        Destroy(state, IVXFormatNode::MallocFormatNode(ParseJsonInPlace(TextWithRoom(state))));
}
BENCHMARK(LoadTree)->Arg(20)->Arg(1000)->Arg(20000);

void LoadTreeFromCopy(benchmark::State& state)
{
    const auto& text = DocumentOf(PresetsOf(state));
    while (state.KeepRunning())
        Destroy(state, IVXFormatNode::MallocFormatNode(ParseJson(text)));
}
BENCHMARK(LoadTreeFromCopy)->Arg(1000);

void WriteTree(benchmark::State& state)
{
    const auto tree = TreeOf(PresetsOf(state));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(JsonText(*tree->JsonValue()));
}
BENCHMARK(WriteTree)->Arg(1000);

void BuildValues(benchmark::State& state)
{
    const auto tree = TreeOf(PresetsOf(state));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(tree->JsonValue());
}
BENCHMARK(BuildValues)->Arg(1000);

void CloneTree(benchmark::State& state)
{
    const auto tree = TreeOf(PresetsOf(state));
    while (state.KeepRunning())
        Destroy(state, tree->Clone(IVXFormatNode::CloneAll));
}
BENCHMARK(CloneTree)->Arg(1000);

} // namespace

} // namespace Vexlor::Bench
