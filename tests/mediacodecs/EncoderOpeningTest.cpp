#include "CodecLists.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/BitrateModel.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/SampleFormats.h"
#include "runtime/mediacodecs/Snapping.h"

#include <gtest/gtest.h>

#include <cstring>

extern "C"
{
#include <libavcodec/avcodec.h>
#include <libavutil/log.h>
}

namespace Vexlor
{

namespace
{

struct FreeContext
{
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
};
using Context = std::unique_ptr<AVCodecContext, FreeContext>;

struct FreeFrame
{
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
using Frame = std::unique_ptr<AVFrame, FreeFrame>;

struct FreePacket
{
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};
using Packet = std::unique_ptr<AVPacket, FreePacket>;

std::string ErrorText(int code)
{
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    return av_make_error_string(text.data(), text.size(), code);
}

Frame BlankFrame(const AVCodecContext& context)
{
    Frame frame(av_frame_alloc());
    frame->width = context.width;
    frame->height = context.height;
    frame->format = context.pix_fmt;
    frame->pts = 0;
    if (av_frame_get_buffer(frame.get(), 0) < 0)
        return nullptr;
    for (const auto* plane : frame->buf)
        if (plane)
            std::memset(plane->data, 0, plane->size);
    return frame;
}

// SVT-AV1 1.4 waits for ever when it is closed before it has seen a whole stream.
int EncodeOneFrame(AVCodecContext& context)
{
    const auto frame = BlankFrame(context);
    int code = frame ? avcodec_send_frame(&context, frame.get()) : AVERROR(ENOMEM);
    if (code == 0)
        code = avcodec_send_frame(&context, nullptr);
    const Packet packet(av_packet_alloc());
    while (code == 0)
    {
        code = avcodec_receive_packet(&context, packet.get());
        av_packet_unref(packet.get());
    }
    return code == AVERROR_EOF ? 0 : code;
}

struct VideoChoice
{
    PictureSize size;
    AVRational rate;
    int format;
};

int EncodeVideo(const CodecCapabilities& codec, const std::string& encoder, const VideoChoice& choice)
{
    const auto* found = avcodec_find_encoder_by_name(encoder.c_str());
    const Context context(avcodec_alloc_context3(found));
    context->width = choice.size.width;
    context->height = choice.size.height;
    context->framerate = choice.rate;
    context->time_base = av_inv_q(choice.rate);
    context->pix_fmt = AVPixelFormatOf(choice.format);
    context->bit_rate =
        VideoBitrate(codec, {choice.size.width, choice.size.height, av_q2d(choice.rate), choice.format},
                     IVXCodecs::QualityLevelNormal);
    const int code = avcodec_open2(context.get(), found, nullptr);
    return code == 0 ? EncodeOneFrame(*context) : code;
}

int OpenAudio(const CodecCapabilities& codec, const std::string& encoder, const SoundStream& sound,
              IVXCodecs::QualityLevel level)
{
    const auto* found = avcodec_find_encoder_by_name(encoder.c_str());
    const Context context(avcodec_alloc_context3(found));
    context->sample_rate = sound.sampleRate;
    context->time_base = {1, sound.sampleRate};
    context->sample_fmt = AVSampleFormatOf(sound.format);
    av_channel_layout_from_mask(&context->ch_layout, sound.layout);
    context->bit_rate = AudioBitrate(codec, sound, level);
    return avcodec_open2(context.get(), found, nullptr);
}

/// One codec, with the engine's own messages off: what matters is whether it opens.
class Opening : public testing::TestWithParam<int>
{
protected:
    void SetUp() override
    {
        av_log_set_level(AV_LOG_QUIET);
        if (Codec().encoders.empty())
            GTEST_SKIP() << "no encoder here";
    }
    void TearDown() override { av_log_set_level(AV_LOG_INFO); }
    static const CodecCapabilities& Codec() { return *CapabilitiesOf(GetParam()); }
    static const std::string& Preferred() { return Codec().encoders.front(); }
};

class VideoEncoding : public Opening
{
};

TEST_P(VideoEncoding, EveryOfferedFormatIsTaken)
{
    for (const int format : Codec().formats)
    {
        const auto rate = SnapFrameRate({25, 1}, Codec().codec->video);
        const int code = EncodeVideo(Codec(), Preferred(), {{640, 480}, rate, format});
        EXPECT_EQ(0, code) << Preferred() << ' ' << PixFormatName(format) << ": " << ErrorText(code);
    }
}

TEST_P(VideoEncoding, TheSmallestPictureIsTaken)
{
    const auto& limits = Codec().codec->video;
    const int code = EncodeVideo(Codec(), Preferred(),
                                 {limits.min, SnapFrameRate({25, 1}, limits), Codec().formats.front()});
    EXPECT_EQ(0, code) << Preferred() << ": " << ErrorText(code);
}

TEST_P(VideoEncoding, EverySnappedRateIsTaken)
{
    for (const auto wanted : {AVRational{1, 9}, {12, 1}, {24000, 1001}, {90000000, 3003003}, {999, 1}})
    {
        const auto rate = SnapFrameRate(wanted, Codec().codec->video);
        const int code = EncodeVideo(Codec(), Preferred(), {{320, 240}, rate, Codec().formats.front()});
        EXPECT_EQ(0, code) << Preferred() << ' ' << rate.num << '/' << rate.den << ": " << ErrorText(code);
    }
}

INSTANTIATE_TEST_SUITE_P(Codecs, VideoEncoding, testing::ValuesIn(CodecIDs(VXCodecTypeVideo)), CodecTestName);

class AudioOpening : public Opening
{
protected:
    static std::vector<SoundStream> EverySound()
    {
        std::vector<SoundStream> sounds;
        for (const int rate : Codec().sampleRates)
            for (const auto layout : Codec().layouts)
                sounds.push_back({rate, layout, Codec().formats.front()});
        return sounds;
    }
};

TEST_P(AudioOpening, EveryOfferedRateAndLayoutOpensAtEveryGrade)
{
    for (const auto& sound : EverySound())
        for (const int grade : {0, 1, 2, 3})
        {
            const int code = OpenAudio(Codec(), Preferred(), sound, IVXCodecs::QualityLevel{grade});
            EXPECT_EQ(0, code) << sound.sampleRate << ' ' << VXChannelLayoutName(sound.layout) << " grade "
                               << grade << ": " << ErrorText(code);
        }
}

TEST_P(AudioOpening, EveryOfferedFormatOpens)
{
    for (const int format : Codec().formats)
    {
        const SoundStream sound{Codec().sampleRates.front(), Codec().layouts.front(), format};
        const int code = OpenAudio(Codec(), Preferred(), sound, IVXCodecs::QualityLevelNormal);
        EXPECT_EQ(0, code) << Preferred() << ' ' << SampleFormatName(format) << ": " << ErrorText(code);
    }
}

INSTANTIATE_TEST_SUITE_P(Codecs, AudioOpening, testing::ValuesIn(CodecIDs(VXCodecTypeAudio)), CodecTestName);

} // namespace

} // namespace Vexlor
