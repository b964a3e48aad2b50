#include "tests/encode/CodecWalk.h"

#include "runtime/mediacodecs/CodecCapabilities.h"
#include "tests/mediacodecs/CodecLists.h"

#include <gtest/gtest.h>

#include <cstdio>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace Vexlor
{

namespace
{

std::vector<int> AllCodecIDs()
{
    auto ids = CodecIDs(VXCodecTypeVideo);
    std::ranges::copy(CodecIDs(VXCodecTypeAudio), std::back_inserter(ids));
    return ids;
}

/// What was walked in this process, printed as a table at its end.
class WalkReport : public testing::Environment
{
public:
    void Add(WalkedCodec walked) { m_walked.push_back(std::move(walked)); }
    void AddWithoutEncoder(const std::string& codec) { m_withoutEncoder.push_back(codec); }
    // Frames come and go by megabytes: handing each back to the system would cost a third of the time.
    void SetUp() override
    {
#ifdef __GLIBC__
        mallopt(M_MMAP_THRESHOLD, 32 << 20); // the largest that it takes
        mallopt(M_TRIM_THRESHOLD, 1 << 30);
        mallopt(M_ARENA_MAX, 1);
#endif
    }
    void TearDown() override
    {
        std::printf("%-22s %-14s %8s %6s %8s %8s %8s %8s  %s\n", "codec", "encoder", "combin.", "files",
                    "left out", "gave way", "not kept", "seconds", "containers");
        for (const auto& row : m_walked)
            std::printf("%-22s %-14s %8d %6d %8d %8d %8d %8.1f  %s\n", row.codec.c_str(), row.encoder.c_str(),
                        row.combinations, row.files, row.leftOut, row.gaveWay.Count(), row.notCarried.Count(),
                        row.seconds, row.containers.c_str());
        std::printf("%zu codecs walked, %zu without an encoder here:", m_walked.size(),
                    m_withoutEncoder.size());
        for (const auto& codec : m_withoutEncoder)
            std::printf(" %s", codec.c_str());
        std::printf("\n");
    }

private:
    std::vector<WalkedCodec> m_walked;
    std::vector<std::string> m_withoutEncoder;
};

// The framework owns it.
auto* const g_report = static_cast<WalkReport*>(testing::AddGlobalTestEnvironment(new WalkReport));

class EveryOfferedCombination : public testing::TestWithParam<int>
{
};

TEST_P(EveryOfferedCombination, OpensAndReadsBackAsAsked)
{
    if (CapabilitiesOf(GetParam())->encoders.empty())
    {
        g_report->AddWithoutEncoder(std::string(FindCodec(GetParam())->name));
        GTEST_SKIP() << "no encoder here";
    }
    const auto walked = WalkCodec(GetParam());
    std::printf("gave way:\n%snot kept:\n%s", walked.gaveWay.Text().c_str(),
                walked.notCarried.Text().c_str());
    EXPECT_GT(walked.combinations, 0);
    EXPECT_EQ("", walked.failures.Text());
    g_report->Add(walked);
}

INSTANTIATE_TEST_SUITE_P(Codecs, EveryOfferedCombination, testing::ValuesIn(AllCodecIDs()), CodecTestName);

} // namespace

} // namespace Vexlor
