#pragma once

#include "VXExport.h"

#include <memory>
#include <string>

namespace Vexlor
{

class IVXArtworkImageGroup;
class IVXError;

/// The artwork file: icon groups, found by the face identifiers that tree nodes and format presets carry.
///
/// Groups are read from the file at every call and are not shared. Entries keep the order in which they were
/// added. Failures are logged and answered by empty values. A file that cannot be opened, or is none of ours,
/// reads as one without entries and is never written to. The file only grows: replacing and removing leave
/// the old bytes unused.
class VX_PRESETS_API IVXArtworkImageMgr
{
public:
    static constexpr int CategoryFaceIDCustomize = 10000000;  ///< category: presets of the user's own
    static constexpr int CategoryFaceIDRecentList = 10000001; ///< category: presets used lately
    static constexpr int CategoryFaceIDGeneral = 10000002;    ///< category: presets for most purposes
    static constexpr int CategoryFaceIDVideo = 10000003;      ///< category: containers of pictures and sound
    static constexpr int CategoryFaceIDAudio = 10000004;      ///< category: containers of sound
    static constexpr int CategoryFaceIDDevice = 10000005;     ///< category: presets for devices
    static constexpr int CategoryFaceIDWebVideo = 10000006;   ///< category: presets for the web
    static constexpr int FormatFaceIDMP4 = 20000000;          ///< container: MP4
    static constexpr int FormatFaceIDAVI = 20000001;          ///< container: AVI
    static constexpr int FormatFaceIDWEBM = 20000002;         ///< container: WEBM
    static constexpr int FormatFaceIDMKV = 20000003;          ///< container: MKV
    static constexpr int FormatFaceIDMP3 = 20001000;          ///< container: MP3
    static constexpr int FormatFaceIDM4A = 20001001;          ///< container: M4A
    static constexpr int FormatFaceIDWAV = 20001002;          ///< container: WAV
    static constexpr int FormatFaceIDWMA = 20001003;          ///< container: WMA

    /// Opens the file of that path for reading. Never empty; error is accepted and never written.
    static std::shared_ptr<const IVXArtworkImageMgr> MallocArtworkImageMgr(const std::string& path,
                                                                           std::shared_ptr<IVXError>* error);
    /// Opens the file of that path for reading and writing, and makes it when there is none; as above.
    static std::shared_ptr<IVXArtworkImageMgr> MallocArtworkImageMgrMutable(const std::string& path,
                                                                            std::shared_ptr<IVXError>* error);

    /// The first group of that face identifier; logged and empty when there is none or it cannot be read.
    virtual std::shared_ptr<const IVXArtworkImageGroup> GetArtworkImageGroupByID(int faceID) const = 0;
    /// Number of groups.
    virtual int ArtworkImageGroupCount() const = 0;
    /// The group at idx; logged and empty when there is none or it cannot be read.
    virtual std::shared_ptr<const IVXArtworkImageGroup> GetArtworkImageGroup(int idx) const = 0;
    /// Face identifier of the group at idx, or -1 when there is none.
    virtual int FaceIDAt(int idx) const = 0;
    /// Adds the group under an automatic face identifier, as the operation below does for -1.
    virtual int AddArtworkImageGroup(std::shared_ptr<IVXArtworkImageGroup> group) = 0;
    /// Stores the group in place of the first one of that face identifier, whose entry deliberately gets a
    /// new automatic identifier; without such an entry the group is added under faceID.
    virtual void ReplaceArtworkImageGroup(std::shared_ptr<IVXArtworkImageGroup> group, int faceID) = 0;
    /// Removes the first group of that face identifier.
    virtual void RemoveArtworkImageGroupByID(int faceID) = 0;
    /// Removes the group at idx.
    virtual void RemoveArtworkImageGroup(int idx) = 0;
    /// Reserved; always empty.
    virtual std::shared_ptr<const IVXArtworkImageGroup> GetArtworkImageGroupReserved() const = 0;
    /// Adds the group under faceID, even when that is taken, or under an automatic one for -1: the lowest
    /// positive number behind the last automatic one of this process that is free. Answers the identifier; 0,
    /// with nothing written, for an empty handle and when the file is not writable or holds 1,599 groups
    /// already.
    virtual int AddArtworkImageGroup(std::shared_ptr<IVXArtworkImageGroup> group, int faceID) = 0;

    /// The group of CategoryFaceIDCustomize.
    std::shared_ptr<const IVXArtworkImageGroup> GetArtworkImageGroupCustomize() const;
    /// The group of CategoryFaceIDRecentList.
    std::shared_ptr<const IVXArtworkImageGroup> GetArtworkImageGroupRecentList() const;

protected:
    ~IVXArtworkImageMgr() = default;
};

} // namespace Vexlor
