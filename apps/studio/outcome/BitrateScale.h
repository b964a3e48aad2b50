#pragma once

#include <array>
#include <vector>

namespace Vexlor::Studio
{

/// The bitrates that a stream's output has to do with, in bits a second; 0 for one that is not known.
struct BitrateFacts
{
    static constexpr int kGrades = 4;

    int source = 0;
    int output = 0;
    int least = 0;                ///< the lower bound
    int most = 0;                 ///< the upper bound
    bool isLeastOfPreset = false; ///< else it is where the codec's own range begins
    bool isMostOfPreset = false;
    std::array<int, kGrades> grades{}; ///< the output's at each grade of quality, the lowest first
    bool followsBitrate = true;        ///< false where content or a profile decides

    bool operator==(const BitrateFacts&) const = default;
};

/// A scale of bitrates on which equal ratios are equally far apart.
class BitrateScale final
{
public:
    /// From the lowest to the highest known bitrate of the facts.
    explicit BitrateScale(const BitrateFacts& facts);

    /// From 0 to 1. A bitrate beyond an end stands at that end.
    double Position(int bitrate) const;
    /// True when no bitrate is known.
    bool IsEmpty() const { return m_most <= 0; }

private:
    double m_least = 0;
    double m_most = 0;
};

/// Grades whose bitrates are the same, at one place of the scale.
struct GradeMark
{
    int bitrate = 0;
    int first = 0; ///< the lowest grade here
    int last = 0;  ///< the highest
};

/// The grades' places, the lowest bitrate first; those that are not known are left out.
std::vector<GradeMark> MarksOf(const BitrateFacts& facts);

/// The left edges of labels that are centred at their places as far as they neither overlap nor leave the
/// line from left to right. The places must ascend. Labels that do not fit in together start at the left, one
/// behind the other.
std::vector<double> SpreadLabels(const std::vector<double>& places, const std::vector<double>& widths,
                                 double left, double right, double gap);

} // namespace Vexlor::Studio
