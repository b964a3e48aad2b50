#include "tests/memory/RefusedMemory.h"

#include "IVXCodecParameter.h"
#include "IVXFormatNode.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "VXMediaCodecs.h"
#include "runtime/foundation/VXJson.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

// What is made once in a program is made when memory is short: each attempt is a process of its own, in which
// nothing was asked before. So this program has no other test.

namespace Vexlor
{

namespace
{

std::shared_ptr<std::string> LoadAndMatch()
{
    std::string error;
    const auto document = ParseJson(R"({"formatPresetList": [{"name": "MP4", "formatName": "MP4",
        "indexForVideoCodecPresets": 1, "videoCodecPresets": [{}, {"codecID": 1}]}]})",
                                    &error);
    if (!document)
        throw std::bad_alloc();
    const auto video = IVXCodecParameter::MallocCodecParamter(VXCodecID_H264);
    video->SetWidth(1920);
    video->SetHeight(1080);
    const auto source = IVXFormatParameter::MallocFormatParameter("MOV", "");
    source->SetVideoCodecParameter(video);
    const auto tree = IVXFormatNode::MallocFormatNode(document);
    const auto made = IVXFormatPreset::MallocFormatPreset("WEBM", "");
    const auto output = tree->GetFormatPreset(0)->MatchForSource(source)->GetVideoCodecParameter();
    return std::make_shared<std::string>(JsonText(*tree->JsonValue()) + JsonText(*made->JsonValue()) +
                                         std::to_string(output->GetWidth()) + ' ' +
                                         std::to_string(output->GetBitrate()));
}

/// Runs the operation, which answers a text, in a process of its own. Where that dies, the text is empty.
template <class Operation>
std::string InAChild(Operation operation)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child == 0)
    {
        const std::string text = operation();
        _exit(write(ends[1], text.data(), text.size()) == static_cast<ssize_t>(text.size()) ? 0 : 1);
    }
    close(ends[1]);
    std::string text;
    std::array<char, 4096> part{};
    for (ssize_t size = 0; (size = read(ends[0], part.data(), part.size())) > 0;)
        text.append(part.data(), static_cast<std::size_t>(size));
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return text;
}

class FirstCall : public testing::TestWithParam<Refusal>
{
};

TEST_P(FirstCall, ThatFindsNoMemoryLeavesTheNextOneWhole)
{
    constexpr std::size_t kFirst = 100; // each of them, then some of more than a thousand
    constexpr std::size_t kStep = 7;
    const std::string right = InAChild([] { return *LoadAndMatch(); });
    ASSERT_LT(1000U, right.size());
    std::size_t granted = 0;
    std::string told = right;
    for (; told == right; granted += granted < kFirst ? 1 : kStep)
        told = InAChild(
            [&]
            {
                const auto outcome = OutcomeOf(LoadAndMatch, granted, GetParam());
                if (outcome == Outcome::BadAlloc)
                    return *LoadAndMatch();
                return std::string(outcome == Outcome::Done ? "done" : "swallowed");
            });
    EXPECT_EQ("done", told) << granted;
    EXPECT_LT(1000U, granted);
}

INSTANTIATE_TEST_SUITE_P(Memory, FirstCall, testing::Values(Refusal::One, Refusal::AllThatFollow),
                         [](const auto& test)
                         { return test.param == Refusal::One ? "ShortForAMoment" : "Gone"; });

} // namespace

} // namespace Vexlor
