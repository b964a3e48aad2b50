#include "IVXArtworkImageMgr.h"

#include "artwork/VXArtworkTable.h"

#include "IVXArtworkImageGroup.h"
#include "IVXError.h"
#include "IVXLogConfig.h"

#include <algorithm>
#include <exception>

namespace Vexlor
{

namespace
{

constexpr int kAutomatic = -1;

// The last face identifier that was given automatically, by any manager of this process.
int g_lastAutomaticFaceID = 0;

using Group = std::shared_ptr<IVXArtworkImageGroup>;
using ReadOnlyGroup = std::shared_ptr<const IVXArtworkImageGroup>;

/// The group as the file holds it; empty when it is larger than a buffer or than memory.
std::shared_ptr<IVXData> BlobOf(const IVXArtworkImageGroup& group)
{
    try
    {
        return group.ToData();
    }
    catch (const std::exception&)
    {
        return {};
    }
}

class VXArtworkImageMgr final : public IVXArtworkImageMgr
{
public:
    VXArtworkImageMgr(const std::string& path, IVXStorage::StorageMode mode);

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
    VXArtworkEntry Store(const std::shared_ptr<const IVXData>& blob, int faceID);
    void SetUp();
    void WriteTable();

    std::shared_ptr<IVXStorage> m_storage;
    VXArtworkTable m_table;
    bool m_writable = false;
};

VXArtworkImageMgr::VXArtworkImageMgr(const std::string& path, IVXStorage::StorageMode mode)
    : m_storage(IVXStorage::MallocStorage(path, mode))
{
    if (m_storage && m_storage->IsOpen())
        SetUp();
    else
        IVXLogConfig::Printf(IVXLogConfig::LogLevelError, "VXArtworkImageMgr Error:file:%s,is open faild\n",
                             path.c_str());
}

void VXArtworkImageMgr::SetUp()
{
    if (m_storage->Size() > 0)
    {
        m_table = ReadArtworkTable(*m_storage, m_writable);
        return;
    }
    // One write makes the whole head, so that no process that ends here leaves half a one.
    m_writable = true;
    const auto head = ArtworkHead(m_table);
    const auto empty = IVXData::MallocData(kArtworkHeadSize);
    std::copy_n(head->Bytes(), head->Size(), empty->Bytes());
    m_storage->WriteData(empty);
}

ReadOnlyGroup VXArtworkImageMgr::GetArtworkImageGroupByID(int faceID) const
{
    if (const int idx = IndexOf(faceID); idx >= 0)
        return Load(At(idx));
    IVXLogConfig::Printf("VXArtworkImageMgr->GetArtworkImageGroupByID Error: faceID=%d,No exist!\n", faceID);
    return {};
}

ReadOnlyGroup VXArtworkImageMgr::GetArtworkImageGroup(int idx) const
{
    if (Holds(idx))
        return Load(At(idx));
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
    const auto found = std::ranges::find(m_table, faceID, &VXArtworkEntry::faceID);
    return found != m_table.end() ? static_cast<int>(found - m_table.begin()) : -1;
}

int VXArtworkImageMgr::NextAutomaticFaceID() const
{
    int faceID = g_lastAutomaticFaceID;
    do
        ++faceID;
    while (faceID == CategoryFaceIDCustomize || faceID == CategoryFaceIDRecentList || IndexOf(faceID) >= 0);
    return faceID;
}

int VXArtworkImageMgr::AddArtworkImageGroup(Group group, int faceID)
{
    const auto blob = group && HasRoomFor(m_table.size() + 1) ? BlobOf(*group) : nullptr;
    if (!blob)
        return 0;
    if (faceID == kAutomatic)
        faceID = g_lastAutomaticFaceID = NextAutomaticFaceID();
    m_table.push_back(Store(blob, faceID));
    WriteTable();
    return faceID;
}

void VXArtworkImageMgr::ReplaceArtworkImageGroup(Group group, int faceID)
{
    const int idx = IndexOf(faceID);
    if (idx < 0)
    {
        const auto entries = m_table.size();
        AddArtworkImageGroup(std::move(group), faceID);
        if (m_table.size() > entries)
            WriteTable();
        return;
    }
    const auto blob = group && HasRoomFor(m_table.size()) ? BlobOf(*group) : nullptr;
    if (!blob)
        return;
    // Deliberately under a new identifier: whoever kept the old one must not get another picture by it.
    g_lastAutomaticFaceID = NextAutomaticFaceID();
    m_table[static_cast<std::size_t>(idx)] = Store(blob, g_lastAutomaticFaceID);
    WriteTable();
}

void VXArtworkImageMgr::RemoveArtworkImageGroup(int idx)
{
    if (!Holds(idx) || !HasRoomFor(m_table.size() - 1))
        return;
    m_table.erase(m_table.begin() + idx);
    WriteTable();
}

/// Writes the blob behind all others; the table that names it is written afterwards.
VXArtworkEntry VXArtworkImageMgr::Store(const std::shared_ptr<const IVXData>& blob, int faceID)
{
    m_storage->SeekToEnd();
    // A file that was cut inside its head: a group there would be overwritten by the table.
    if (m_storage->Position() < kArtworkHeadSize)
        m_storage->Seek(kArtworkHeadSize);
    const auto offset = m_storage->Position();
    m_storage->WriteData(blob);
    return {faceID, offset, blob->Size()};
}

// One write for the whole table, so that a process that ends between two of them leaves a table that can be
// read.
void VXArtworkImageMgr::WriteTable()
{
    // Anywhere but at the start it would overwrite groups.
    if (m_storage->Seek(0)->Succeed())
        m_storage->WriteData(ArtworkHead(m_table));
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
