#include "MediaInput.h"

#include "FFmpegError.h"

extern "C"
{
#include <libavutil/mem.h>
#include <libavutil/opt.h>
}

#include <algorithm>
#include <array>
#include <string_view>

namespace Vexlor
{

namespace
{

// Music with a large cover picture shows its kind only behind the picture.
constexpr unsigned kKindBytes = 8U << 20;
// Enough for a transport stream whose sound begins a few seconds after its picture.
constexpr std::int64_t kStreamBytes = std::int64_t{16} << 20;
constexpr std::int64_t kStreamTime = std::int64_t{10} * AV_TIME_BASE;

struct RefusedKind
{
    std::string_view demuxer;
    std::string_view what;
};

constexpr std::array kRefusedKinds{
    RefusedKind{"concat", "a playlist"},
    RefusedKind{"dash", "a playlist"},
    RefusedKind{"hls", "a playlist"},
    RefusedKind{"ico", "a still picture"},
    RefusedKind{"image2", "a still picture"},
    RefusedKind{"imf", "a playlist"},
    RefusedKind{"sdp", "the description of a network stream"},
    RefusedKind{"tty", "text"},
};

// What the file is, when it is of a kind that is not read; empty when it is read.
std::string_view Refused(std::string_view demuxer)
{
    if (demuxer.ends_with("_pipe"))
        return "a still picture";
    const auto* row = std::ranges::find(kRefusedKinds, demuxer, &RefusedKind::demuxer);
    return row != kRefusedKinds.end() ? row->what : std::string_view();
}

std::string Damaged(const BoundedFile& file, int error)
{
    return file.Exhausted() ? "is damaged or cut off (its description has no end)"
                            : "is damaged or cut off (" + FFmpegErrorText(error) + ")";
}

int RefuseToOpen(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**)
{
    return AVERROR(EACCES);
}

int HasHadEnough(void* file) { return static_cast<const BoundedFile*>(file)->Exhausted() ? 1 : 0; }

} // namespace

MediaInput::MediaInput(const std::string& path) : m_file(path), m_complaint(m_file.Complaint())
{
    if (m_complaint.empty())
        m_complaint = Open();
}

std::string MediaInput::Open()
{
    const AVInputFormat* format = nullptr;
    const int score = av_probe_input_buffer2(m_file.IO(), &format, "", nullptr, 0, kKindBytes);
    if (score < 0)
        return "is not a media file of a known kind";
    const auto refused = Refused(format->name);
    if (!refused.empty())
        return "is " + std::string(refused) + ", not a media file";
    int error = OpenAs(*format);
    // A kind guessed from next to nothing that then does not open was no kind at all.
    if (error < 0 && score <= AVPROBE_SCORE_RETRY)
        return "is not a media file of a known kind";
    if (error >= 0)
        error = avformat_find_stream_info(m_context.get(), nullptr);
    return error < 0 ? Damaged(m_file, error) : std::string();
}

int MediaInput::OpenAs(const AVInputFormat& format)
{
    auto* context = avformat_alloc_context();
    if (!context)
        return AVERROR(ENOMEM);
    context->pb = m_file.IO();
    context->io_open = RefuseToOpen;
    context->interrupt_callback = {HasHadEnough, &m_file};
    context->protocol_whitelist = av_strdup("none");
    context->probesize = kStreamBytes;
    context->max_analyze_duration = kStreamTime;
    const int error = avformat_open_input(&context, "", &format, nullptr); // frees the context when it fails
    m_context.reset(context);
    return error;
}

double MediaInput::Duration() const
{
    return std::max(0.0, static_cast<double>(m_context->duration) / AV_TIME_BASE);
}

} // namespace Vexlor
