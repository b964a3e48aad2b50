#include "bench/Goals.h"
#include "bench/Results.h"

#include <QGuiApplication>

#include <iostream>
#include <malloc.h>

// Memory that is given back stays with the process, so that no figure hangs on what ran before it: a fault on
// a fresh page may cost as much as a hundred small allocations.
static void KeepMemory()
{
    ::mallopt(M_MMAP_MAX, 0);
    ::mallopt(M_TRIM_THRESHOLD, -1);
}

// Repetitions of all benchmarks take turns, so that a machine that slows down for a while slows a figure and
// its yardstick alike.
int main(int argc, char** argv)
{
    KeepMemory();
    const QGuiApplication application(argc, argv);
    std::vector<char*> arguments(argv, argv + argc);
    std::string turns = "--benchmark_enable_random_interleaving=true";
    std::string repetitions = "--benchmark_repetitions=9";
    std::string time = "--benchmark_min_time=0.05";
    arguments.insert(arguments.begin() + 1, {turns.data(), repetitions.data(), time.data()});
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    Vexlor::Bench::Results results;
    benchmark::RunSpecifiedBenchmarks(&results);
    results.Print(std::cout);
    std::cout << '\n';
    Vexlor::Bench::PrintGoals(std::cout, results);
    return results.HasFailed() ? 1 : 0;
}
