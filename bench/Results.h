#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

namespace Vexlor::Bench
{

/// What the benchmarks of one run took. Other programs on the machine only ever make a repetition slower, so
/// the fastest of each is what is kept.
class Results final : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Whether a benchmark told of an error.
    bool HasFailed() const { return m_hasFailed; }
    /// Microseconds of processor time, or of the benchmark's own clock; 0 for one that did not run.
    double Time(const std::string& name) const { return At(m_times, name); }
    double Ratio(const std::string& name, const std::string& yardstick) const
    {
        return Time(name) / Time(yardstick);
    }
    /// What a benchmark counted besides.
    double Counter(const std::string& name) const { return At(m_counters, name); }

    void Print(std::ostream& out) const;

private:
    static double At(const std::map<std::string, double>& map, const std::string& name)
    {
        const auto found = map.find(name);
        return found == map.end() ? 0 : found->second;
    }

    std::map<std::string, double> m_times;
    std::map<std::string, double> m_counters;
    bool m_hasFailed = false;
};

} // namespace Vexlor::Bench
