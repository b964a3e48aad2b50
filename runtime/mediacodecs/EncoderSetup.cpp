#include "EncoderSetup.h"

#include "BitrateControl.h"
#include "BitrateModel.h"
#include "BitrateSnapping.h"
#include "CodecCapabilities.h"
#include "EncoderOptions.h"
#include "EncoderTable.h"
#include "FFmpegCompat.h"
#include "FFmpegError.h"
#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXRational.h"
#include "LevelTable.h"
#include "ProfileTable.h"
#include "SampleFormats.h"
#include "StreamLabels.h"
#include "VXMediaCodecs.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace Vexlor
{

namespace
{

/// One encoder on its way to being opened.
class Opening
{
public:
    Opening(const CodecCapabilities& codec, const AVCodec& encoder)
        : m_codec(codec), m_encoder(encoder), m_row(FindEncoder(encoder.name)), m_lists(ListsOf(encoder))
    {
        m_setup.context.reset(avcodec_alloc_context3(&encoder));
    }

    EncoderSetup Open(const IVXCodecParameter& stream, const EncoderWish& wish)
    {
        return Result(TryToOpen(stream, wish));
    }
    PreparedEncoder Prepared(const IVXCodecParameter& stream, const EncoderWish& wish);

private:
    bool IsVideo() const { return m_encoder.type == AVMEDIA_TYPE_VIDEO; }
    int Prepare(const IVXCodecParameter& stream, const EncoderWish& wish);
    int TryToOpen(const IVXCodecParameter& stream, const EncoderWish& wish);
    EncoderSetup Result(int error);
    void SetPicture(const IVXCodecParameter& stream);
    void SetSound(const IVXCodecParameter& stream);
    void SetBitrate(const IVXCodecParameter& stream);
    void SetBounds(const IVXCodecParameter& stream);
    void SetQuality(const IVXCodecParameter& stream);
    void SetLabels(const IVXCodecParameter& stream);
    template <class Label>
    void SetLabel(int& number, std::string_view option, const Label& label);
    int PixelFormat(int wanted);
    int SampleFormat(int wanted);

    const CodecCapabilities& m_codec;
    const AVCodec& m_encoder;
    EncoderRow m_row;
    EncoderLists m_lists;
    EncoderOptions m_options;
    int m_format = VXPixFormat_None;
    int m_profile = IVXCodecs::VXProfileUnknown;
    int m_avProfile = VX_AV_PROFILE(UNKNOWN);
    LevelBounds m_level;
    EncoderSetup m_setup;
};

template <class Listed>
bool Lists(std::span<const Listed> list, Listed value)
{
    return list.empty() || std::ranges::find(list, value) != list.end();
}

// The first format on offer that the encoder takes.
template <class Listed, class ToListed>
int FirstTaken(const std::vector<int>& offered, std::span<const Listed> list, ToListed toListed)
{
    const auto found =
        std::ranges::find_if(offered, [&](int format) { return Lists(list, toListed(format)); });
    return found == offered.end() ? offered.front() : *found;
}

int Opening::PixelFormat(int wanted)
{
    const auto avFormat = AVPixelFormatOf(wanted);
    if (avFormat != AV_PIX_FMT_NONE && Lists(m_lists.pixelFormats, avFormat))
        return wanted;
    const int taken = FirstTaken(m_codec.formats, m_lists.pixelFormats, AVPixelFormatOf);
    m_setup.changes.push_back("pixel format " + PixFormatName(wanted) + " is not taken; " +
                              PixFormatName(taken) + " stands in");
    return taken;
}

// Planar and interleaved samples are the same sound: where one is not taken, the other is no change.
int Opening::SampleFormat(int wanted)
{
    const auto avFormat = AVSampleFormatOf(wanted);
    for (const auto same : {avFormat, av_get_planar_sample_fmt(avFormat), av_get_packed_sample_fmt(avFormat)})
        if (same != AV_SAMPLE_FMT_NONE && Lists(m_lists.sampleFormats, same))
            return SampleFormatOf(same, SampleBitsOf(wanted));
    const int taken = FirstTaken(m_codec.formats, m_lists.sampleFormats, AVSampleFormatOf);
    m_setup.changes.push_back("sample format " + SampleFormatName(wanted) + " is not taken; " +
                              SampleFormatName(taken) + " stands in");
    return taken;
}

void SetFlags(AVCodecContext& context, const EncoderWish& wish)
{
    if (wish.globalHeader)
        context.flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    if (context.codec->capabilities & AV_CODEC_CAP_EXPERIMENTAL) // the table has it all the same
        context.strict_std_compliance = FF_COMPLIANCE_EXPERIMENTAL;
}

AVRational Rational(const IVXRational& value) { return {value.Num(), value.Den()}; }

void Opening::SetPicture(const IVXCodecParameter& stream)
{
    auto& context = *m_setup.context;
    context.width = stream.GetWidth();
    context.height = stream.GetHeight();
    context.framerate = Rational(*stream.GetFrameRate());
    context.time_base = av_inv_q(context.framerate);
    context.sample_aspect_ratio = Rational(*stream.GetAspectRatio());
    m_format = PixelFormat(stream.GetFormat());
    context.pix_fmt = AVPixelFormatOf(m_format);
    if (m_row.fullRange)
        context.color_range = AVCOL_RANGE_JPEG;
}

void Opening::SetSound(const IVXCodecParameter& stream)
{
    auto& context = *m_setup.context;
    context.sample_rate = stream.GetSampleRate();
    context.time_base = {1, context.sample_rate};
    m_format = SampleFormat(stream.GetFormat());
    context.sample_fmt = AVSampleFormatOf(m_format);
    context.bits_per_raw_sample = SampleBitsOf(m_format);
    av_channel_layout_from_mask(&context.ch_layout, stream.GetChannelLayout());
}

void Opening::SetBitrate(const IVXCodecParameter& stream)
{
    const int wanted = stream.GetBitrate();
    int taken = IsVideo() ? NearestBitrate(m_codec, PictureOf(stream, m_format), m_profile, wanted)
                          : NearestBitrate(m_codec, SoundOf(stream, m_format), wanted);
    if (m_row.mostBitrate > 0)
        taken = std::min(taken, m_row.mostBitrate);
    if (taken != wanted && wanted != 0) // an untold one is nobody's
        m_setup.changes.push_back("bitrate " + std::to_string(wanted) + " is not taken; " +
                                  std::to_string(taken) + " stands in");
    m_setup.context->bit_rate = taken;
}

void Opening::SetBounds(const IVXCodecParameter& stream)
{
    auto& context = *m_setup.context;
    const auto control = ControlOf(stream, static_cast<int>(context.bit_rate), m_level);
    if (control.isConstant && !m_row.constant.empty())
        m_options.Parse(m_row.constant);
    if (m_row.isUnbounded && control.isConstant)
        m_setup.changes.emplace_back("constant bitrate is not taken; a variable one stands in");
    else if (m_row.isUnbounded && control.most > 0)
        m_setup.changes.emplace_back("bounds of the bitrate are not taken; none stand in");
    if (m_row.isUnbounded || control.most == 0)
        return;
    context.rc_max_rate = control.most;
    context.rc_min_rate = m_row.hasNoFilling ? 0 : control.least;
    if (control.least > 0 && m_row.hasNoFilling)
        m_setup.changes.push_back((control.isConstant ? std::string("constant bitrate is")
                                                      : std::string("bounds of the bitrate are")) +
                                  " not filled up where pictures take less");
    context.rc_buffer_size =
        static_cast<int>(std::min<std::int64_t>(control.buffer, std::numeric_limits<int>::max()));
}

void Opening::SetQuality(const IVXCodecParameter& stream)
{
    if (m_row.qualities.front() == 0 || stream.GetBitrate() <= 0 || m_options.Has("quality"))
        return;
    const auto grade = VideoGrade(m_codec, PictureOf(stream, m_format), stream.GetBitrate());
    m_options.Add("quality", std::to_string(m_row.qualities.at(static_cast<std::size_t>(grade))));
}

template <class Label>
void Opening::SetLabel(int& number, std::string_view option, const Label& label)
{
    if (option.empty() || label.option.empty())
        number = label.avNumber;
    else
        m_options.Add(option, label.option);
}

// 4:2:2 counts its levels anew behind the escape bit: ISO/IEC 13818-2 table 8-5. Level 0 of Simple came after
// its other levels, when 0 had been reserved: ISO/IEC 14496-2 table G.1.
int LevelInProfile(int codecID, const StreamLabels& labels, int level)
{
    constexpr int kMain = 8;
    constexpr int k422 = 128;
    constexpr int kSimple = 0;
    const int profile = labels.profile ? labels.profile->number : IVXCodecs::VXProfileUnknown;
    if (codecID == VXCodecID_MPEG2 && profile == k422)
        return labels.level->number == kMain ? 5 : 2;
    const bool isMPEG4 = codecID == VXCodecID_MPEG4 || codecID == VXCodecID_DIVX;
    return isMPEG4 && profile == kSimple && level == 0 ? 8 : level;
}

void Opening::SetLabels(const IVXCodecParameter& stream)
{
    auto& context = *m_setup.context;
    auto labels = FittingLabels(m_codec, stream, m_format);
    m_level.buffer = labels.bounds.buffer;
    if (!m_row.isUnbounded)
        m_level.bitrate = labels.bounds.bitrate;
    std::ranges::move(labels.changes, std::back_inserter(m_setup.changes));
    if (labels.profile)
    {
        m_profile = labels.profile->number;
        m_avProfile = labels.profile->avNumber;
        SetLabel(context.profile, m_row.profileOption, *labels.profile);
    }
    if (labels.level)
    {
        SetLabel(context.level, m_row.levelOption, *labels.level);
        context.level = LevelInProfile(m_codec.codec->id, labels, context.level);
    }
}

int Opening::Prepare(const IVXCodecParameter& stream, const EncoderWish& wish)
{
    if (!m_setup.context)
        return AVERROR(ENOMEM);
    if (IsVideo())
        SetPicture(stream);
    else
        SetSound(stream);
    SetFlags(*m_setup.context, wish);
    const int error = m_options.Parse(wish.options);
    if (error < 0)
        return error;
    m_options.Parse(m_row.always);
    SetLabels(stream);
    SetBitrate(stream);
    SetBounds(stream);
    SetQuality(stream);
    return 0;
}

int Opening::TryToOpen(const IVXCodecParameter& stream, const EncoderWish& wish)
{
    if (const int error = Prepare(stream, wish); error < 0)
        return error;
    const int opened = m_options.Open(*m_setup.context, m_encoder);
    if (m_setup.context->profile == VX_AV_PROFILE(UNKNOWN)) // muxers ask for it, some encoders forget to say
        m_setup.context->profile = m_avProfile;
    return opened;
}

EncoderSetup Opening::Result(int error)
{
    if (error < 0)
    {
        m_setup.complaint = std::string(m_encoder.name) + ": " + FFmpegErrorText(error);
        m_setup.context.reset();
    }
    return std::move(m_setup);
}

PreparedEncoder Opening::Prepared(const IVXCodecParameter& stream, const EncoderWish& wish)
{
    PreparedEncoder prepared;
    static_cast<EncoderSetup&>(prepared) = Result(Prepare(stream, wish));
    prepared.options = m_options.All();
    return prepared;
}

template <class Answer>
Answer Refused(const std::string& complaint)
{
    Answer answer;
    answer.complaint = complaint;
    return answer;
}

/// What the encoder answers that is wished for, or the reason why there is none.
template <class Answer>
Answer Ask(const IVXCodecParameter& stream, const EncoderWish& wish,
           Answer (Opening::*ask)(const IVXCodecParameter&, const EncoderWish&))
{
    const auto* codec = CapabilitiesOf(stream.GetCodecID());
    if (!codec)
        return Refused<Answer>("codec " + std::to_string(stream.GetCodecID()) + " is not known");
    const auto name =
        wish.encoder.empty() && !codec->encoders.empty() ? codec->encoders.front() : wish.encoder;
    const auto* encoder = avcodec_find_encoder_by_name(name.c_str());
    if (!encoder || encoder->id != codec->codec->avID)
        return Refused<Answer>(std::string(codec->codec->name) + " has no encoder " + name + " here");
    return (Opening(*codec, *encoder).*ask)(stream, wish);
}

} // namespace

EncoderSetup OpenEncoder(const IVXCodecParameter& stream, const EncoderWish& wish)
{
    return Ask(stream, wish, &Opening::Open);
}

PreparedEncoder PrepareEncoder(const IVXCodecParameter& stream, const EncoderWish& wish)
{
    return Ask(stream, wish, &Opening::Prepared);
}

} // namespace Vexlor
