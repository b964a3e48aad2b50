#include "IVXArtworkImageMgr.h"

#include "tests/artwork/ArtworkBytes.h"
#include "tests/artwork/StoppingFile.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <iostream>

namespace Vexlor
{

namespace
{

using Mgr = IVXArtworkImageMgr;

const std::string kNew = "the new picture";

enum class Kind
{
    Add,
    Replace,
    Remove,
};

/// One change of a file, to the group at target; a position without a group stands for one that is missing.
struct Change
{
    const char* name;
    Kind kind;
    int groups;
    int target;
};

std::shared_ptr<const Mgr> Reopened() { return Mgr::MallocArtworkImageMgr("icons", nullptr); }

/// Makes the change and answers the identifier under which the new group would be found.
int Make(const Change& change)
{
    const auto manager = Mgr::MallocArtworkImageMgrMutable("icons", nullptr);
    const int faceID = FaceIDOfGroup(change.target);
    switch (change.kind)
    {
    case Kind::Add:
        return manager->AddArtworkImageGroup(GroupOf(kNew));
    case Kind::Replace:
        manager->ReplaceArtworkImageGroup(GroupOf(kNew), faceID);
        return manager->FaceIDAt(change.target);
    case Kind::Remove:
        manager->RemoveArtworkImageGroupByID(faceID);
    }
    return 0;
}

/// What became of the groups of all files that were looked at.
struct Account
{
    int stops = 0;  ///< places at which the storage stopped
    int files = 0;  ///< different files that were left behind and opened again
    int others = 0; ///< groups that the change was not about, each found and loaded
    int before = 0; ///< files in which the changed group is as before the change
    int after = 0;  ///< files in which it is as after it
    int torn = 0;   ///< files in which it is neither
    int lost = 0;   ///< groups that the change was not about and that are gone
};

class ArtworkFault : public testing::TestWithParam<Change>
{
protected:
    void SetUp() override
    {
        SetStoppingFile(&m_file);
        m_start = GetParam().groups ? FileOfGroups(GetParam().groups) : Bytes();
    }

    /// Stops the change after that many operations and bytes of the next, and counts what is left.
    void Stop(int operations, std::size_t tornAt)
    {
        m_file = StoppingFile(m_start, operations, tornAt);
        m_newFaceID = Make(GetParam());
        m_file.stopsAfter = StoppingFile::kNever;
        ++m_account.stops;
        if (m_file.bytes == m_last)
            return; // as it was after the stop before
        m_last = m_file.bytes;
        ++m_account.files;
        const auto manager = Reopened();
        CountOthers(*manager);
        CountTarget(*manager);
    }

    /// Makes the change to its end; what it asked of the storage then says where to stop.
    StoppingFile Whole()
    {
        m_file = StoppingFile(m_start);
        Make(GetParam());
        return m_file;
    }

    void StopBetweenOperations()
    {
        const int operations = Whole().operations;
        for (int k = 0; k <= operations; ++k)
            Stop(k, 0);
    }

    void StopInsideWrites()
    {
        for (const auto& write : Whole().writes)
            for (std::size_t at = 1; at < write.size; ++at)
                Stop(write.operation, at);
    }

    void Report(const char* where)
    {
        const std::array<std::pair<const char*, int>, 7> counts{{{"stops", m_account.stops},
                                                                 {"files", m_account.files},
                                                                 {"others", m_account.others},
                                                                 {"before", m_account.before},
                                                                 {"after", m_account.after},
                                                                 {"torn", m_account.torn},
                                                                 {"lost", m_account.lost}}};
        std::cout << GetParam().name << ", " << where << ":";
        for (const auto& [name, count] : counts)
        {
            RecordProperty(name, count);
            std::cout << " " << name << " " << count;
        }
        std::cout << "\n";
    }

    Account m_account;

private:
    void CountOthers(const Mgr& manager)
    {
        for (int i = 0; i < GetParam().groups; ++i)
        {
            if (i == GetParam().target)
                continue;
            const auto found = TextOf(manager.GetArtworkImageGroupByID(FaceIDOfGroup(i)));
            ++(found == "0.0=" + PictureOfGroup(i) ? m_account.others : m_account.lost);
        }
    }

    void CountTarget(const Mgr& manager)
    {
        if (IsAsAfter(manager))
            ++m_account.after;
        else if (IsAsBefore(manager))
            ++m_account.before;
        else
            ++m_account.torn;
    }

    bool IsAsAfter(const Mgr& manager) const
    {
        if (GetParam().kind == Kind::Remove)
            return manager.ArtworkImageGroupCount() == GetParam().groups - 1 && TargetOf(manager) == "none";
        return TextOf(manager.GetArtworkImageGroupByID(m_newFaceID)) == "0.0=" + kNew;
    }

    static bool IsAsBefore(const Mgr& manager)
    {
        const bool had = GetParam().target < GetParam().groups;
        return manager.ArtworkImageGroupCount() == GetParam().groups &&
               TargetOf(manager) == (had ? "0.0=" + PictureOfGroup(GetParam().target) : "none");
    }

    static std::string TargetOf(const Mgr& manager)
    {
        return TextOf(manager.GetArtworkImageGroupByID(FaceIDOfGroup(GetParam().target)));
    }

    StoppingFile m_file;
    Bytes m_start;
    Bytes m_last = BytesOf("none yet");
    int m_newFaceID = 0;
};

TEST_P(ArtworkFault, BetweenAnyTwoOperationsLosesNoGroup)
{
    StopBetweenOperations();
    EXPECT_EQ(0, m_account.lost);
    EXPECT_EQ(0, m_account.torn);
    EXPECT_LE(1, m_account.before);
    EXPECT_LE(1, m_account.after);
    Report("between operations");
}

constexpr std::array kChanges{
    Change{"AddTo0", Kind::Add, 0, 0},
    Change{"AddTo1", Kind::Add, 1, 1},
    Change{"AddTo2", Kind::Add, 2, 2},
    Change{"AddTo100", Kind::Add, 100, 100},
    Change{"ReplaceMissingOf0", Kind::Replace, 0, 0},
    Change{"ReplaceMissingOf100", Kind::Replace, 100, 100},
    Change{"ReplaceIn1", Kind::Replace, 1, 0},
    Change{"ReplaceFirstOf2", Kind::Replace, 2, 0},
    Change{"ReplaceLastOf2", Kind::Replace, 2, 1},
    Change{"ReplaceFirstOf100", Kind::Replace, 100, 0},
    Change{"ReplaceMiddleOf100", Kind::Replace, 100, 50},
    Change{"ReplaceLastOf100", Kind::Replace, 100, 99},
    Change{"RemoveFrom1", Kind::Remove, 1, 0},
    Change{"RemoveFirstOf2", Kind::Remove, 2, 0},
    Change{"RemoveLastOf2", Kind::Remove, 2, 1},
    Change{"RemoveFirstOf100", Kind::Remove, 100, 0},
    Change{"RemoveMiddleOf100", Kind::Remove, 100, 50},
    Change{"RemoveLastOf100", Kind::Remove, 100, 99},
};
INSTANTIATE_TEST_SUITE_P(Changes, ArtworkFault, testing::ValuesIn(kChanges),
                         [](const auto& test) { return test.param.name; });

using ArtworkTear = ArtworkFault;

TEST_P(ArtworkTear, InsideAnyWriteLosesNoOtherGroup)
{
    StopInsideWrites();
    EXPECT_EQ(0, m_account.lost);
    EXPECT_LE(1, m_account.before);
    EXPECT_LE(1, m_account.after);
    Report("inside writes");
}

// Without the removals: their one write moves entries.
INSTANTIATE_TEST_SUITE_P(Changes, ArtworkTear, testing::ValuesIn(kChanges.begin(), kChanges.begin() + 12),
                         [](const auto& test) { return test.param.name; });

/// What the layout cannot give, as docs/artwork-file.md says.
class ArtworkLayout : public testing::Test
{
protected:
    void Open(Bytes bytes)
    {
        m_file = StoppingFile(std::move(bytes));
        SetStoppingFile(&m_file);
        m_manager = Mgr::MallocArtworkImageMgrMutable("icons", nullptr);
    }

    /// Lets the change write no more than those bytes of its last write, the head.
    void TearHeadAt(std::size_t tornAt, int operationsBefore, const std::function<void(Mgr&)>& change)
    {
        m_file.stopsAfter = m_file.operations + operationsBefore;
        m_file.tornAt = tornAt;
        change(*m_manager);
        m_file.stopsAfter = StoppingFile::kNever;
    }

    /// Adds groups until the last automatic identifier ends in that byte.
    void UseUpFaceIDsTo(int lastByte) const
    {
        int faceID = 0;
        while (faceID % 256 != lastByte)
            faceID = m_manager->AddArtworkImageGroup(GroupOf("any"));
    }

    static constexpr int kAfterTheBlob = 3; // seek to the end, write the group, seek to the start

    StoppingFile m_file;
    std::shared_ptr<Mgr> m_manager;
};

TEST_F(ArtworkLayout, ARemovalTornAmongTheEntriesShowsOneGroupTwiceAndLosesAnother)
{
    Open(FileOfGroups(3));
    TearHeadAt(kTableAt + kEntryWidth, 1, [](Mgr& manager) { manager.RemoveArtworkImageGroup(0); });
    const auto manager = Reopened();
    EXPECT_EQ(FaceIDOfGroup(1), manager->FaceIDAt(0));
    EXPECT_EQ(FaceIDOfGroup(1), manager->FaceIDAt(1));
    EXPECT_EQ(nullptr, manager->GetArtworkImageGroupByID(FaceIDOfGroup(2)));
}

TEST_F(ArtworkLayout, ACountThatCarriesIsZeroInBetween)
{
    Open(FileOf(std::vector<std::pair<int, Bytes>>(255, {7, BlobOf("red")})));
    TearHeadAt(12, kAfterTheBlob, [](Mgr& manager) { manager.AddArtworkImageGroup(GroupOf(kNew), 8); });
    EXPECT_EQ(0, Reopened()->ArtworkImageGroupCount());
}

TEST_F(ArtworkLayout, AFaceIdentifierTornInsideMayBeAnotherGroups)
{
    Open(FileOf({{0x0100, BlobOf("red")}, {0x01FF, BlobOf("blue")}}));
    UseUpFaceIDsTo(0xFE); // so that the next one ends in FF
    TearHeadAt(kTableAt + 1, kAfterTheBlob,
               [](Mgr& manager) { manager.ReplaceArtworkImageGroup(GroupOf(kNew), 0x0100); });
    const auto manager = Reopened();
    EXPECT_EQ("0.0=red", TextOf(manager->GetArtworkImageGroupByID(0x01FF)));
    EXPECT_EQ("0.0=blue", TextOf(manager->GetArtworkImageGroup(1)));
}

TEST_F(ArtworkLayout, AFileThatWasTornInsideItsMagicIsNotWrittenToAgain)
{
    Open({});
    m_file.bytes.resize(5);
    const auto manager = Mgr::MallocArtworkImageMgrMutable("icons", nullptr);
    EXPECT_EQ(0, manager->AddArtworkImageGroup(GroupOf(kNew), 8));
    EXPECT_EQ(5U, m_file.bytes.size());
}

} // namespace

} // namespace Vexlor
