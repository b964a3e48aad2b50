#include "tests/artwork/ArtworkFixture.h"

#include <algorithm>

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

/// Makes the file hold the identifiers behind last, so that the next automatic one passes over all of them.
void TakeThoseBehind(int last, Bytes& file)
{
    file.resize(kHeadArea);
    std::ranges::copy(Head(kTaken, {}), file.begin());
    for (int i = 0; i < kTaken; ++i)
        std::ranges::copy(Entry(last + 1 + i, 0, 0), file.begin() + 15 + 32 * i);
}

// The counter belongs to the process, so this program has one test. Ten million steps are for fast builds
// only.
TEST_F(ArtworkFileTest, AutomaticFaceIdentifiersStartAtOneAndPassOverCustomizeAndRecentList)
{
    const auto manager = OpenMutable();
    EXPECT_EQ(1, manager->AddArtworkImageGroup(GroupOf("a")));
    int last = manager->AddArtworkImageGroup(GroupOf("b"));
    EXPECT_EQ(2, last);
    const auto group = GroupOf("c");
    for (; kIsFastBuild && last + kTaken + 1 < IVXArtworkImageMgr::CategoryFaceIDCustomize;
         last += kTaken + 1)
    {
        TakeThoseBehind(last, FileBytes());
        ASSERT_EQ(last + kTaken + 1, OpenMutable()->AddArtworkImageGroup(group));
    }
    FileBytes().clear();
    const auto another = OpenMutable();
    while (kIsFastBuild && last < 9999999)
        last = another->AddArtworkImageGroup(group);
    EXPECT_EQ(kIsFastBuild ? 10000002 : 3, another->AddArtworkImageGroup(group));
}

} // namespace

} // namespace Vexlor
