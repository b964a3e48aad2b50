#include "MediaInput.h"

#include "DisplayNames.h"
#include "FFmpegError.h"
#include "MovieClaims.h"

extern "C"
{
#include <libavutil/avstring.h>
#include <libavutil/mem.h>
#include <libavutil/opt.h>
}

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace Vexlor
{

namespace
{

// Music with a large cover picture shows its kind only behind the picture.
constexpr unsigned kKindBytes = 8U << 20;
// Enough for a transport stream whose sound begins a few seconds after its picture.
constexpr std::int64_t kStreamBytes = std::int64_t{16} << 20;
constexpr std::int64_t kStreamTime = std::int64_t{10} * AV_TIME_BASE;
// A file that is cut off still has the tables of the whole. So many entries take a hundred megabytes, and
// tell of a day and a half of pictures.
constexpr std::int64_t kFreeEntries = 4'000'000;

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

int RefuseToOpen(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**)
{
    return AVERROR(EACCES);
}

int IsToStop(void* input) { return static_cast<const MediaInput*>(input)->HasHadEnough() ? 1 : 0; }

struct FreePacket
{
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

/// The same options for the decoders of so many streams.
class DecoderOptions final
{
public:
    DecoderOptions(std::size_t streams, std::int64_t pixels) : m_options(streams)
    {
        for (auto& each : m_options)
            av_dict_set_int(&each, "max_pixels", pixels, 0);
    }
    ~DecoderOptions()
    {
        for (auto& each : m_options)
            av_dict_free(&each);
    }
    DecoderOptions(const DecoderOptions&) = delete;
    DecoderOptions& operator=(const DecoderOptions&) = delete;

    AVDictionary** All() { return m_options.empty() ? nullptr : m_options.data(); }

private:
    std::vector<AVDictionary*> m_options;
};

} // namespace

MediaInput::MediaInput(const std::string& path, const VXMediaFileLimits& limits)
    : m_limits(limits), m_file(path, limits.bytes, limits.seconds), m_complaint(m_file.Complaint())
{
    if (m_complaint.empty())
        m_complaint = Open();
}

std::string MediaInput::Open()
{
    const AVInputFormat* format = nullptr;
    const int score = av_probe_input_buffer2(m_file.IO(), &format, "", nullptr, 0, kKindBytes);
    if (score < 0 && HasHadEnough())
        return Damaged(score);
    if (score < 0)
        return "is not a media file of a known kind";
    const auto refused = Refused(format->name);
    if (!refused.empty())
        return "is " + std::string(refused) + ", not a media file";
    auto complaint = ComplaintAboutClaims(*format);
    if (!complaint.empty())
        return complaint;
    int error = OpenAs(*format);
    // A kind guessed from next to nothing that then does not open was no kind at all.
    if (error < 0 && score <= AVPROBE_SCORE_RETRY)
        return "is not a media file of a known kind";
    if (error >= 0)
        error = FindStreams();
    return error < 0 ? Damaged(error) : std::string();
}

std::string MediaInput::Damaged(int error) const
{
    if (m_file.IsLate())
        return "takes too long to read (more than " + FormatDecimal(m_limits.seconds, 3) + " seconds)";
    if (m_file.Exhausted())
        return "is damaged or cut off (its description has no end)";
    if (error == AVERROR(ENOMEM))
        return "is damaged (it asks for more streams or memory than a media file may have)";
    return "is damaged or cut off (" + FFmpegErrorText(error) + ")";
}

std::string MediaInput::ComplaintAboutClaims(const AVInputFormat& format) const
{
    if (!av_match_name("mov", format.name))
        return {};
    const auto claims = ReadMovieClaims(*m_file.IO(), m_file.Size());
    if (claims.isCompressed)
        return "has a compressed description, which is not read";
    if (claims.entries - kFreeEntries > m_file.Size())
        return "is damaged (it tells of " + std::to_string(claims.entries) + " samples in " +
               std::to_string(m_file.Size()) + " bytes)";
    return {};
}

int MediaInput::OpenAs(const AVInputFormat& format)
{
    auto* context = avformat_alloc_context();
    if (!context)
        return AVERROR(ENOMEM);
    context->pb = m_file.IO();
    context->io_open = RefuseToOpen;
    context->interrupt_callback = {IsToStop, this};
    context->protocol_whitelist = av_strdup("none");
    context->probesize = kStreamBytes;
    context->max_analyze_duration = kStreamTime;
    context->max_streams = m_limits.streams;
    const int error = avformat_open_input(&context, "", &format, nullptr); // frees the context when it fails
    m_context.reset(context);
    return error;
}

// Streams that show in the middle of a file would have decoders that take pictures of any size. They are met
// first, and no others are let in.
void MediaInput::MeetStreams()
{
    if ((m_context->ctx_flags & AVFMTCTX_NOHEADER) == 0)
        return;
    const auto start = avio_tell(m_context->pb);
    const std::unique_ptr<AVPacket, FreePacket> packet(av_packet_alloc());
    while (packet && !HasHadEnough() && avio_tell(m_context->pb) - start < kStreamBytes &&
           av_read_frame(m_context.get(), packet.get()) >= 0)
        av_packet_unref(packet.get());
    m_context->max_streams = static_cast<int>(std::max(1U, m_context->nb_streams));
    av_seek_frame(m_context.get(), -1, start, AVSEEK_FLAG_BYTE);
}

int MediaInput::FindStreams()
{
    MeetStreams();
    DecoderOptions options(m_context->nb_streams, m_limits.pixels);
    return avformat_find_stream_info(m_context.get(), options.All());
}

double MediaInput::Duration() const
{
    return std::max(0.0, static_cast<double>(m_context->duration) / AV_TIME_BASE);
}

} // namespace Vexlor
