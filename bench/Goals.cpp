#include "bench/Goals.h"

#include "bench/Results.h"

#include <array>
#include <iomanip>
#include <ostream>
#include <string_view>

namespace Vexlor::Bench
{

namespace
{

struct Goal
{
    std::string_view what;
    std::string_view unit;
    double least;
    double most;
    double (*reached)(const Results&);
    std::string_view yardstick;
};

double LoadRatio(const Results& results, const std::string& presets)
{
    return results.Ratio("LoadTree/" + presets, "ParseText/" + presets);
}

constexpr double kMilliseconds = 1e-3;

constexpr std::array kGoals{
    Goal{"text to tree, 1,000 presets", "x", 0, 3.0,
         [](const Results& results) { return LoadRatio(results, "1000"); }, "simdjson's parse of the text"},
    Goal{"its ratio for 20 presets", "of that", 0.75, 1.25,
         [](const Results& results) { return LoadRatio(results, "20") / LoadRatio(results, "1000"); },
         "the ratio for 1,000"},
    Goal{"its ratio for 20,000 presets", "of that", 0.75, 1.25,
         [](const Results& results) { return LoadRatio(results, "20000") / LoadRatio(results, "1000"); },
         "the ratio for 1,000"},
    Goal{"tree to text, 1,000 presets", "x", 0, 4.0,
         [](const Results& results) { return results.Ratio("WriteTree/1000", "ParseText/1000"); },
         "simdjson's parse of the text"},
    Goal{"Clone(CloneAll), 1,000 presets", "x", 0, 1.2,
         [](const Results& results) { return results.Ratio("CloneTree/1000", "ParseText/1000"); },
         "simdjson's parse of the text"},
    Goal{"heap per preset value of a loaded tree", "bytes", 0, 110,
         [](const Results& results) { return results.Counter("BytesAValue"); }, "-"},
    Goal{"MatchForSource, video and audio", "x", 0, 1.0,
         [](const Results& results) { return results.Ratio("MatchPreset", "ParsePreset"); },
         "simdjson's parse of a preset of 8 KB"},
    Goal{"a source against 1,000 presets", "ms", 0, 10,
         [](const Results& results) { return results.Time("MatchCatalogue/1000") * kMilliseconds; }, "-"},
    Goal{"the same against 10,000, for each 1,000", "ms", 0, 10,
         [](const Results& results) { return results.Time("MatchCatalogue/10000") * kMilliseconds / 10; },
         "-"},
    Goal{"artwork: open a file of 1,599 groups", "x", 0, 3.0,
         [](const Results& results) { return results.Ratio("OpenArtwork", "ReadArtworkHead"); },
         "reading its table as bytes"},
    Goal{"artwork: a group by the last identifier", "x", 0, 2.0,
         [](const Results& results) { return results.Ratio("LoadLastGroup", "ReadLastBlob"); },
         "pread of its blob and one copy"},
    Goal{"ToIcon of 12 pictures", "x", 0, 1.1,
         [](const Results& results) { return results.Ratio("GroupToIcon", "DecodePictures"); },
         "QImage::fromData of each"},
    Goal{"start of the tool to the first line of tree", "x", 0, 2.0,
         [](const Results& results) { return results.Ratio("StartTree", "StartNothing"); },
         "a program of the same libraries that does nothing"},
};

} // namespace

void PrintGoals(std::ostream& out, const Results& results)
{
    out << "| what | reached | goal | yardstick |\n|---|---:|---:|---|\n"
        << std::fixed << std::setprecision(2);
    for (const auto& goal : kGoals)
    {
        const double reached = goal.reached(results);
        const bool isEnough = reached > 0 && reached >= goal.least && reached <= goal.most;
        out << "| " << goal.what << " | " << (isEnough ? "" : "**") << reached << (isEnough ? "" : "**")
            << ' ' << goal.unit << " | ";
        if (goal.least > 0)
            out << goal.least << " to ";
        out << goal.most << " | " << goal.yardstick << " |\n";
    }
}

} // namespace Vexlor::Bench
