#pragma once

#include "BoundedFile.h"
#include "VXMediaFile.h"

extern "C"
{
#include <libavformat/avformat.h>
}

namespace Vexlor
{

/// A media file opened by libavformat, with what its streams hold found out.
///
/// The content alone tells the file's kind, never its name. Nothing but the file itself is read: kinds that
/// name other files or addresses (playlists, network descriptions) are refused, and whatever else a reader
/// asks to open stays closed.
class MediaInput final
{
public:
    /// Opens the file; Complaint tells whether it can be read.
    MediaInput(const std::string& path, const VXMediaFileLimits& limits);

    /// Why the file cannot be read, in plain words; empty when it can.
    const std::string& Complaint() const { return m_complaint; }
    /// The file's container and streams; only when there is no complaint.
    AVFormatContext& Context() const { return *m_context; }
    /// The file's size in bytes.
    std::int64_t Size() const { return m_file.Size(); }
    /// True when the file has cost all that it may: it is to be left as it is.
    bool HasHadEnough() const { return m_file.Exhausted() || m_file.IsLate(); }
    /// The file's length in seconds; 0 when it is unknown.
    double Duration() const;

private:
    std::string Open();
    std::string ComplaintAboutClaims(const AVInputFormat& format) const;
    int OpenAs(const AVInputFormat& format);
    void MeetStreams();
    int FindStreams();
    std::string Damaged(int error) const;

    struct CloseContext
    {
        void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
    };

    VXMediaFileLimits m_limits;
    BoundedFile m_file;
    std::unique_ptr<AVFormatContext, CloseContext> m_context; // reads through m_file, so it goes first
    std::string m_complaint;
};

} // namespace Vexlor
