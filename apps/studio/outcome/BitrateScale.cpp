#include "BitrateScale.h"

#include <algorithm>
#include <cmath>

namespace Vexlor::Studio
{

namespace
{

// A scale of one bitrate alone has it in the middle.
constexpr double kAround = 2;

std::vector<int> KnownBitrates(const BitrateFacts& facts)
{
    std::vector<int> bitrates{facts.source, facts.output, facts.least, facts.most};
    bitrates.insert(bitrates.end(), facts.grades.begin(), facts.grades.end());
    std::erase_if(bitrates, [](int bitrate) { return bitrate < 1; });
    return bitrates;
}

} // namespace

BitrateScale::BitrateScale(const BitrateFacts& facts)
{
    const auto bitrates = KnownBitrates(facts);
    if (bitrates.empty())
        return;
    const auto [least, most] = std::ranges::minmax(bitrates);
    m_least = least;
    m_most = most;
    if (least == most)
    {
        m_least /= kAround;
        m_most *= kAround;
    }
}

double BitrateScale::Position(int bitrate) const
{
    if (IsEmpty() || bitrate <= m_least)
        return 0;
    return std::min(std::log(bitrate / m_least) / std::log(m_most / m_least), 1.0);
}

std::vector<GradeMark> MarksOf(const BitrateFacts& facts)
{
    std::vector<GradeMark> marks;
    for (int grade = 0; grade < BitrateFacts::kGrades; ++grade)
    {
        const int bitrate = facts.grades[static_cast<std::size_t>(grade)];
        if (bitrate < 1)
            continue;
        if (!marks.empty() && marks.back().bitrate == bitrate)
            marks.back().last = grade;
        else
            marks.push_back({bitrate, grade, grade});
    }
    std::ranges::stable_sort(marks, {}, &GradeMark::bitrate);
    return marks;
}

std::vector<double> SpreadLabels(const std::vector<double>& places, const std::vector<double>& widths,
                                 double left, double right, double gap)
{
    std::vector<double> edges(places.size());
    double free = left;
    for (std::size_t i = 0; i < places.size(); ++i)
    {
        edges[i] = std::max(free, places[i] - widths[i] / 2);
        free = edges[i] + widths[i] + gap;
    }
    double end = right;
    for (std::size_t i = places.size(); i-- > 0;)
    {
        edges[i] = std::min(edges[i], end - widths[i]);
        end = edges[i] - gap;
    }
    if (edges.empty() || edges.front() >= left)
        return edges;
    for (std::size_t i = 0; i < edges.size(); ++i) // too narrow for all of them
        edges[i] = i == 0 ? left : edges[i - 1] + widths[i - 1] + gap;
    return edges;
}

} // namespace Vexlor::Studio
