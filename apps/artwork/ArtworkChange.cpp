#include "ArtworkChange.h"

#include "ArtworkReplacement.h"
#include "apps/host/Faces.h"
#include "apps/host/Failure.h"

#include "IVXArtworkImageGroup.h"
#include "IVXArtworkImageMgr.h"
#include "IVXData.h"
#include "IVXError.h"

#include <algorithm>
#include <cstring>

namespace Vexlor::Tool
{

namespace
{

void Check(const std::shared_ptr<IVXError>& outcome)
{
    if (!outcome->Succeed())
        throw Failure(outcome->Message());
}

ArtworkSources SourcesOf(const ArtworkFile& file)
{
    ArtworkSources groups;
    for (const auto& entry : file.table)
        groups.push_back({entry.faceID, entry});
    return groups;
}

std::shared_ptr<const IVXData> BlobOf(const ArtworkFile& old, const ArtworkSource& group)
{
    return group.blob ? group.blob : BlobOf(old, group.entry);
}

// What a file that was damaged cannot give is said before anything is written.
void CheckSources(const ArtworkFile& old, const ArtworkSources& groups)
{
    if (groups.size() > kMostArtworkEntries)
        throw Failure("an artwork file holds at most " + std::to_string(kMostArtworkEntries) + " groups");
    std::uint64_t used = 0;
    for (const auto& group : groups)
    {
        if (group.blob)
            continue;
        if (!IsWhole(old, group.entry))
            throw Failure("group " + FaceText(group.faceID) + " reaches beyond the end; remove it first");
        used += group.entry.size;
    }
    if (used > old.size)
        throw Failure("groups overlap; see which by vxpresets artwork check, and remove them first");
}

void Write(const std::string& path, const ArtworkFile& old, const ArtworkSources& groups)
{
    const auto storage = IVXStorage::MallocStorage(path, IVXStorage::StorageModeReadWrite);
    Check(storage->Seek(0));
    Check(storage->WriteData(IVXData::MallocData(kArtworkHeadSize)));
    VXArtworkTable table;
    for (const auto& group : groups)
    {
        const auto blob = BlobOf(old, group);
        table.push_back({group.faceID, storage->Position(), blob->Size()});
        Check(storage->WriteData(blob));
    }
    Check(storage->Seek(0));
    Check(storage->WriteData(ArtworkHead(table)));
}

bool IsEqual(const IVXData& one, const IVXData& other)
{
    return one.Size() == other.Size() &&
           (one.Size() == 0 || std::memcmp(one.Bytes(), other.Bytes(), one.Size()) == 0);
}

// By the library's reader for the identifiers, and byte for byte for the groups.
bool HoldsAll(const std::string& path, const ArtworkFile& old, const ArtworkSources& groups)
{
    const auto written = OpenArtwork(path);
    const auto manager = IVXArtworkImageMgr::MallocArtworkImageMgr(path, nullptr);
    if (manager->ArtworkImageGroupCount() != static_cast<int>(groups.size()) ||
        written.table.size() != groups.size())
        return false;
    for (std::size_t i = 0; i < groups.size(); ++i)
        if (manager->FaceIDAt(static_cast<int>(i)) != groups[i].faceID ||
            !IsEqual(*BlobOf(written, written.table[i]), *BlobOf(old, groups[i])))
            return false;
    return true;
}

void Replace(FileReplacement& replacement, const ArtworkFile& old, const ArtworkSources& groups)
{
    CheckSources(old, groups);
    const auto& path = replacement.Open();
    Write(path, old, groups);
    replacement.Sync();
    if (!HoldsAll(path, old, groups))
        throw Failure(path + " does not hold what was written to it");
    replacement.TakePlace();
}

} // namespace

void ChangeArtwork(const std::string& path, bool mayMake,
                   const std::function<void(const ArtworkFile& file, ArtworkSources& groups)>& change)
{
    FileReplacement replacement(path);
    const bool isNew = mayMake && !replacement.Exists();
    const auto old = isNew ? OpenArtwork(path, {}) : OpenArtwork(path);
    auto groups = SourcesOf(old);
    change(old, groups);
    try
    {
        Replace(replacement, old, groups);
    }
    catch (const Failure& failure)
    {
        throw Failure(path + ": not changed: " + failure.what());
    }
}

} // namespace Vexlor::Tool
