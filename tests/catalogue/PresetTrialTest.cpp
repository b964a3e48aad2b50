#include "PresetTrial.h"
#include "PresetPaths.h"
#include "Sources.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace Vexlor
{

namespace
{

const std::vector<PlacedPreset>& Presets()
{
    static const auto presets = DefaultPresets();
    return presets;
}

/// Every how many-th source of a preset is tried: the environment's VX_CATALOGUE_STEP, else 1, which is every
/// one.
std::size_t StepOf()
{
    const char* step = std::getenv("VX_CATALOGUE_STEP");
    return std::max<std::size_t>(1, step ? std::strtoul(step, nullptr, 10) : 1);
}

/// What was tried in this process, printed as a table at its end.
class TrialReport : public testing::Environment
{
public:
    void Add(TriedPreset tried) { m_tried.push_back(std::move(tried)); }
    // Frames come and go by megabytes: handing each back to the system would cost a third of the time.
    void SetUp() override
    {
#ifdef __GLIBC__
        mallopt(M_MMAP_THRESHOLD, 32 << 20); // the largest that it takes
        mallopt(M_TRIM_THRESHOLD, 1 << 30);
        mallopt(M_ARENA_MAX, 1);
#endif
    }
    void TearDown() override;

private:
    std::vector<TriedPreset> m_tried;
};

void TrialReport::TearDown()
{
    double seconds = 0;
    std::printf("+ kept its word, ! did not, . nothing to write, blank not tried; from the left:");
    for (std::size_t source = 0; source < kEncodedSources; ++source)
        std::printf(" %s", std::string(Sources()[source].name).c_str());
    std::printf("\n");
    for (const auto& row : m_tried)
    {
        std::printf("%-*s %6.1f s  %s\n", static_cast<int>(kEncodedSources), row.marks.c_str(), row.seconds,
                    row.path.c_str());
        seconds += row.seconds;
    }
    std::printf("%zu presets in %.0f s\n", m_tried.size(), seconds);
}

// The framework owns it.
auto* const g_report = static_cast<TrialReport*>(testing::AddGlobalTestEnvironment(new TrialReport));

class EveryDefaultPreset : public testing::TestWithParam<std::size_t>
{
};

TEST_P(EveryDefaultPreset, BecomesTheFileThatItPromises)
{
    const auto tried = TryPreset(Presets()[GetParam()], GetParam(), StepOf());
    std::printf("%s", tried.notKept.Text().c_str());
    EXPECT_EQ("", tried.failures.Text()) << tried.path;
    EXPECT_NE(std::string::npos, tried.marks.find_first_of("+!")) << "nothing was tried";
    g_report->Add(tried);
}

std::string TestNameOf(const testing::TestParamInfo<std::size_t>& test)
{
    auto name = Presets()[test.param].path;
    std::ranges::replace_if(
        name, [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Presets, EveryDefaultPreset, testing::Range(std::size_t{0}, Presets().size()),
                         TestNameOf);

} // namespace

} // namespace Vexlor
