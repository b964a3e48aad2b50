#include "IVXArtworkImageGroup.h"
#include "IVXArtworkImageMgr.h"
#include "IVXData.h"

#include "fuzz/Require.h"
#include "tests/platform/ScriptedPlatform.h"

#include <algorithm>

// Any bytes open as an artwork file, all its groups can be asked for, and an addition that is answered by an
// identifier is there when the file is opened again, behind the entries that were there before.

namespace
{

using namespace Vexlor;

constexpr int kWalked =
    64; // groups may overlap, so that walking them all would take the square of the file's size
constexpr int kAdded = 7;

using Manager = std::shared_ptr<const IVXArtworkImageMgr>;

Manager Open() { return IVXArtworkImageMgr::MallocArtworkImageMgr("fuzz", nullptr); }

std::vector<int> FaceIDs(const IVXArtworkImageMgr& manager)
{
    std::vector<int> faceIDs;
    faceIDs.reserve(static_cast<std::size_t>(manager.ArtworkImageGroupCount()));
    for (int i = 0; i < manager.ArtworkImageGroupCount(); ++i)
        faceIDs.push_back(manager.FaceIDAt(i));
    return faceIDs;
}

void Walk(const IVXArtworkImageMgr& manager)
{
    for (int i = 0; i < std::min(kWalked, manager.ArtworkImageGroupCount()); ++i)
    {
        manager.GetArtworkImageGroup(i);
        manager.GetArtworkImageGroupByID(manager.FaceIDAt(i));
    }
    manager.GetArtworkImageGroup(-1);
    manager.GetArtworkImageGroup(manager.ArtworkImageGroupCount());
}

void Change(ScriptedFile& file)
{
    const auto before = file.bytes;
    const auto manager = IVXArtworkImageMgr::MallocArtworkImageMgrMutable("fuzz", nullptr);
    auto expected = FaceIDs(*manager);
    const auto group = IVXArtworkImageGroup::MallocArtworkImageGroup();
    if (manager->AddArtworkImageGroup(group, kAdded) == 0)
    {
        Require(file.bytes == before);
        return;
    }
    expected.push_back(kAdded);
    Require(FaceIDs(*Open()) == expected);
    Require(Open()->GetArtworkImageGroup(static_cast<int>(expected.size()) - 1) != nullptr);
    manager->ReplaceArtworkImageGroup(group, expected.front());
    manager->RemoveArtworkImageGroup(0);
    expected.erase(expected.begin());
    Require(FaceIDs(*Open()) == expected);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    ScriptedPlatform platform;
    auto& file = platform.File("fuzz");
    file.bytes.assign(bytes, bytes + size);
    Walk(*Open());
    Change(file);
    return 0;
}
