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
BENCHMARK(ParseText)->Arg(1)->Arg(20)->Arg(1000)->Arg(20000);

void ParseTextAgain(benchmark::State& state)
{
    const simdjson::padded_string text(DocumentOf(PresetsOf(state)));
    simdjson::dom::parser parser;
    while (state.KeepRunning())
        benchmark::DoNotOptimize(parser.parse(text).error());
}
BENCHMARK(ParseTextAgain)->Arg(1)->Arg(20)->Arg(1000)->Arg(20000);


void LoadTree(benchmark::State& state)
{
    const auto& text = DocumentOf(PresetsOf(state));
    while (state.KeepRunning())
    {
        auto tree = IVXFormatNode::MallocFormatNode(ParseJson(text));
        state.PauseTiming();
        tree.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(LoadTree)->Arg(20)->Arg(1000)->Arg(20000);


void WriteTree(benchmark::State& state)
{
    const auto tree = TreeOf(PresetsOf(state));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(JsonText(*tree->JsonValue()));
}
BENCHMARK(WriteTree)->Arg(1000);

void CloneTree(benchmark::State& state)
{
    const auto tree = TreeOf(PresetsOf(state));
    while (state.KeepRunning())
    {
        auto copy = tree->Clone(IVXFormatNode::CloneAll);
        state.PauseTiming();
        copy.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(CloneTree)->Arg(1000);

} // namespace

} // namespace Vexlor::Bench
