#include "bench/Results.h"

#include <iomanip>
#include <ostream>

namespace Vexlor::Bench
{

namespace
{

double MicrosecondsOf(const benchmark::BenchmarkReporter::Run& run)
{
    const bool hasOwnClock = !run.run_name.time_type.empty();
    const double seconds = hasOwnClock ? run.real_accumulated_time : run.cpu_accumulated_time;
    return seconds * 1e6 / static_cast<double>(run.iterations);
}

} // namespace

void Results::ReportRuns(const std::vector<Run>& runs)
{
    for (const auto& run : runs)
    {
        m_hasFailed = m_hasFailed || run.error_occurred;
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        const auto& name = run.run_name;
        const auto key = name.args.empty() ? name.function_name : name.function_name + '/' + name.args;
        const double time = MicrosecondsOf(run);
        const auto [kept, isNew] = m_times.emplace(key, time);
        kept->second = std::min(kept->second, time);
        for (const auto& [counter, value] : run.counters)
            m_counters[counter] = value;
    }
}

void Results::Print(std::ostream& out) const
{
    out << "| benchmark | fastest, us |\n|---|---:|\n" << std::fixed << std::setprecision(2);
    for (const auto& [name, time] : m_times)
        out << "| " << name << " | " << time << " |\n";
}

} // namespace Vexlor::Bench
