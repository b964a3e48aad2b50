#include "IVXArtworkImageMgr.h"

#include "artwork/VXArtworkTable.h"

#include "IVXArtworkImageGroup.h"
#include "IVXError.h"
#include "IVXLogConfig.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace Vexlor
{

namespace
{

constexpr int kAutomatic = -1;

// The last face identifier that was given automatically, by any manager of this process.
int g_lastAutomaticFaceID = 0;

using Group = std::shared_ptr<IVXArtworkImageGroup>;
using ReadOnlyGroup = std::shared_ptr<const IVXArtworkImageGroup>;
using Blob = std::shared_ptr<const IVXData>;

const Blob kNoBlob;

/// What the step answers; when it runs out of memory or outgrows a buffer, otherwise: no exception leaves a
/// manager.
template <class Result, class Step>
Result Guarded(Result otherwise, Step step)
{
    try
    {
        return step();
    }
    catch (const std::exception&)
    {
        return otherwise;
    }
}

class VXArtworkImageMgr final : public IVXArtworkImageMgr
{
public:
    VXArtworkImageMgr(const std::string& path, IVXStorage::StorageMode mode)
    {
        Guarded(false, [&] { return SetUp(path, mode); });
    }

    ReadOnlyGroup GetArtworkImageGroupByID(int faceID) const override;
    int ArtworkImageGroupCount() const override { return static_cast<int>(m_table.size()); }
    ReadOnlyGroup GetArtworkImageGroup(int idx) const override;
    int FaceIDAt(int idx) const override { return Holds(idx) ? At(idx).faceID : -1; }
    int AddArtworkImageGroup(Group group) override
    {
        return AddArtworkImageGroup(std::move(group), kAutomatic);
    }
    void ReplaceArtworkImageGroup(Group group, int faceID) override;
    void RemoveArtworkImageGroupByID(int faceID) override { RemoveArtworkImageGroup(IndexOf(faceID)); }
    void RemoveArtworkImageGroup(int idx) override;
    ReadOnlyGroup GetArtworkImageGroupReserved() const override { return {}; }
    int AddArtworkImageGroup(Group group, int faceID) override;

private:
    bool Holds(int idx) const { return idx >= 0 && idx < ArtworkImageGroupCount(); }
    const VXArtworkEntry& At(int idx) const { return m_table[static_cast<std::size_t>(idx)]; }
    int IndexOf(int faceID) const;
    int NextAutomaticFaceID() const;
    bool HasRoomFor(std::size_t entries) const { return m_writable && entries <= kMostArtworkEntries; }
    ReadOnlyGroup Load(const VXArtworkEntry& entry) const;
    bool SetUp(const std::string& path, IVXStorage::StorageMode mode);
    void Take(VXArtworkTable table);
    std::uint64_t SeekToFreeSpace();
    bool StoreAt(std::size_t idx, const IVXArtworkImageGroup& group, int faceID);
    template <class Step>
    bool Change(Step step);

    std::shared_ptr<IVXStorage> m_storage;
    VXArtworkTable m_table;
    bool m_ascends = true; // the identifiers in the table do, as they do where only new groups were added
    bool m_writable = false;
};

bool VXArtworkImageMgr::SetUp(const std::string& path, IVXStorage::StorageMode mode)
{
    m_storage = IVXStorage::MallocStorage(path, mode);
    if (!m_storage || !m_storage->IsOpen())
    {
        IVXLogConfig::Printf(IVXLogConfig::LogLevelError, "VXArtworkImageMgr Error:file:%s,is open faild\n",
                             path.c_str());
        return false;
    }
    if (m_storage->Size() > 0)
    {
        bool readable = false;
        Take(ReadArtworkTable(*m_storage, readable));
        return m_writable = readable;
    }
    // One write makes the whole head, so that no process that ends here leaves half a one.
    const auto head = ArtworkHead(m_table);
    const auto empty = IVXData::MallocData(kArtworkHeadSize);
    std::copy_n(head->Bytes(), head->Size(), empty->Bytes());
    m_storage->WriteData(empty);
    return m_writable = true;
}

void VXArtworkImageMgr::Take(VXArtworkTable table)
{
    m_table = std::move(table);
    m_ascends = std::ranges::is_sorted(m_table, {}, &VXArtworkEntry::faceID);
}

ReadOnlyGroup VXArtworkImageMgr::GetArtworkImageGroupByID(int faceID) const
{
    if (const int idx = IndexOf(faceID); idx >= 0)
        return Guarded(ReadOnlyGroup(), [&] { return Load(At(idx)); });
    IVXLogConfig::Printf("VXArtworkImageMgr->GetArtworkImageGroupByID Error: faceID=%d,No exist!\n", faceID);
    return {};
}

ReadOnlyGroup VXArtworkImageMgr::GetArtworkImageGroup(int idx) const
{
    if (Holds(idx))
        return Guarded(ReadOnlyGroup(), [&] { return Load(At(idx)); });
    IVXLogConfig::Printf("VXArtworkImageMgr->GetArtworkImageGroup Error: idx=%d,is beyond array!", idx);
    return {};
}

ReadOnlyGroup VXArtworkImageMgr::Load(const VXArtworkEntry& entry) const
{
    // The log's offset has 32 bits; beyond them it tells the low ones.
    const auto offset = static_cast<int>(entry.offset);
    if (!m_storage->Seek(entry.offset)->Succeed())
    {
        IVXLogConfig::Printf("VXArtworkImageMgr->GetArtworkImageGroupByTableItem Error: faceID=%d,"
                             "Seek File Error(offset = %d)!\n",
                             entry.faceID, offset);
        return {};
    }
    const auto data = m_storage->Read(entry.size);
    if (!data || data->Empty())
    {
        IVXLogConfig::Printf("VXArtworkImageMgr->GetArtworkImageGroupByTableItem Error: faceID=%d,"
                             "read Data Error(offset = %d)!\n",
                             entry.faceID, offset);
        return {};
    }
    auto group = IVXArtworkImageGroup::MallocArtworkImageGroup();
    group->FromData(data);
    return group;
}

int VXArtworkImageMgr::IndexOf(int faceID) const
{
    const auto found = m_ascends ? std::ranges::lower_bound(m_table, faceID, {}, &VXArtworkEntry::faceID)
                                 : std::ranges::find(m_table, faceID, &VXArtworkEntry::faceID);
    const bool isThere = found != m_table.end() && found->faceID == faceID;
    return isThere ? static_cast<int>(found - m_table.begin()) : -1;
}

int VXArtworkImageMgr::NextAutomaticFaceID() const
{
    int faceID = g_lastAutomaticFaceID;
    do
        ++faceID;
    while (faceID == CategoryFaceIDCustomize || faceID == CategoryFaceIDRecentList || IndexOf(faceID) >= 0);
    return faceID;
}

/// Lets the step change a copy of the table; writes the blob that it answers, if any, where the storage
/// stands, then the table, in one write: a process that ends between the two leaves a table that can be read.
/// When memory runs out before that write, everything stays as it was, and the answer is false.
template <class Step>
bool VXArtworkImageMgr::Change(Step step)
{
    VXArtworkTable table;
    Blob head;
    const auto prepare = [&]
    {
        table = m_table;
        const Blob blob = step(table);
        head = ArtworkHead(table);
        if (blob)
            m_storage->WriteData(blob);
        // Anywhere but at the start the head would overwrite groups.
        if (!m_storage->Seek(0)->Succeed())
            head = nullptr;
        return true;
    };
    if (!Guarded(false, prepare))
        return false;
    Take(std::move(table));
    if (head)
        Guarded(std::shared_ptr<IVXError>(), [&] { return m_storage->WriteData(head); });
    return true;
}

int VXArtworkImageMgr::AddArtworkImageGroup(Group group, int faceID)
{
    if (!group || !HasRoomFor(m_table.size() + 1))
        return 0;
    const bool automatic = faceID == kAutomatic;
    const int used = automatic ? NextAutomaticFaceID() : faceID;
    if (!StoreAt(m_table.size(), *group, used))
        return 0;
    if (automatic)
        g_lastAutomaticFaceID = used;
    return used;
}

void VXArtworkImageMgr::ReplaceArtworkImageGroup(Group group, int faceID)
{
    const int idx = IndexOf(faceID);
    if (idx < 0)
    {
        const auto entries = m_table.size();
        AddArtworkImageGroup(std::move(group), faceID);
        if (m_table.size() > entries)
            Change([](VXArtworkTable&) { return kNoBlob; });
        return;
    }
    if (!group || !HasRoomFor(m_table.size()))
        return;
    // Deliberately under a new identifier: whoever kept the old one must not get another picture by it.
    const int used = NextAutomaticFaceID();
    if (StoreAt(static_cast<std::size_t>(idx), *group, used))
        g_lastAutomaticFaceID = used;
}

void VXArtworkImageMgr::RemoveArtworkImageGroup(int idx)
{
    if (!Holds(idx) || !HasRoomFor(m_table.size() - 1))
        return;
    Change(
        [idx](VXArtworkTable& table)
        {
            table.erase(table.begin() + idx);
            return kNoBlob;
        });
}

/// The offset behind all groups, which becomes the storage's position.
std::uint64_t VXArtworkImageMgr::SeekToFreeSpace()
{
    m_storage->SeekToEnd();
    // A file that was cut inside its head: a group there would be overwritten by the table.
    if (m_storage->Position() < kArtworkHeadSize)
        m_storage->Seek(kArtworkHeadSize);
    return m_storage->Position();
}

/// Appends the group and makes it the table's entry at idx, or a new last one.
bool VXArtworkImageMgr::StoreAt(std::size_t idx, const IVXArtworkImageGroup& group, int faceID)
{
    return Change(
        [&](VXArtworkTable& table)
        {
            Blob blob = group.ToData();
            table.resize(std::max(table.size(), idx + 1));
            table[idx] = {faceID, SeekToFreeSpace(), blob->Size()};
            return blob;
        });
}

} // namespace

std::shared_ptr<const IVXArtworkImageGroup> IVXArtworkImageMgr::GetArtworkImageGroupCustomize() const
{
    return GetArtworkImageGroupByID(CategoryFaceIDCustomize);
}

std::shared_ptr<const IVXArtworkImageGroup> IVXArtworkImageMgr::GetArtworkImageGroupRecentList() const
{
    return GetArtworkImageGroupByID(CategoryFaceIDRecentList);
}

std::shared_ptr<const IVXArtworkImageMgr>
IVXArtworkImageMgr::MallocArtworkImageMgr(const std::string& path, std::shared_ptr<IVXError>*)
{
    return std::make_shared<VXArtworkImageMgr>(path, IVXStorage::StorageModeRead);
}

std::shared_ptr<IVXArtworkImageMgr>
IVXArtworkImageMgr::MallocArtworkImageMgrMutable(const std::string& path, std::shared_ptr<IVXError>*)
{
    return std::make_shared<VXArtworkImageMgr>(path, IVXStorage::StorageModeReadWrite);
}

} // namespace Vexlor
