#include "tests/artwork/ArtworkFixture.h"

#include <algorithm>
#include <cstdlib>

namespace Vexlor
{

namespace
{

constexpr int kTaken = 64;

#if defined(__OPTIMIZE__) && !defined(__SANITIZE_ADDRESS__)
constexpr bool kIsFastBuild = true;
#else
constexpr bool kIsFastBuild = false;
#endif

/// Makes the file hold that many identifiers behind last, so that the next automatic one passes over them.
void TakeThoseBehind(int last, int taken, Bytes& file)
{
    file.resize(kHeadArea);
    std::ranges::copy(Head(taken, {}), file.begin());
    auto* to = file.data() + kTableAt;
    for (int i = 1; i <= taken; ++i)
        to = std::ranges::copy(Entry(last + i, 0, 0), to).out;
}

/// Lets the automatic identifiers come to 9,999,999, by files that each hold the next ones.
void ComeToTheReservedOnes(int last, const std::shared_ptr<IVXArtworkImageGroup>& group)
{
    ScriptedPlatform platform;
    auto& file = platform.File("icons").bytes;
    const auto add = [&](int taken)
    {
        TakeThoseBehind(last, taken, file);
        return IVXArtworkImageMgr::MallocArtworkImageMgrMutable("icons", nullptr)
            ->AddArtworkImageGroup(group);
    };
    while (last < 9999999 - kTaken)
        last = add(kTaken - 1);
    EXPECT_EQ(9999999, add(9999999 - last - 1));
}

// The counter belongs to the process, so this program has one test. Ten million steps are for fast builds
// only, and for who asks for them.
TEST_F(ArtworkFileTest, AutomaticFaceIdentifiersStartAtOneAndPassOverCustomizeAndRecentList)
{
    const auto manager = OpenMutable();
    EXPECT_EQ(1, manager->AddArtworkImageGroup(GroupOf("a")));
    EXPECT_EQ(2, manager->AddArtworkImageGroup(GroupOf("b")));
    const bool hasTime = kIsFastBuild || std::getenv("VX_LONG_TESTS") != nullptr;
    if (hasTime)
        ComeToTheReservedOnes(2, GroupOf("c"));
    EXPECT_EQ(hasTime ? 10000002 : 3, manager->AddArtworkImageGroup(GroupOf("d")));
}

} // namespace

} // namespace Vexlor
