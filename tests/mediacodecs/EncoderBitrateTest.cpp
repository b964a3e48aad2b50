#include "CodecLists.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/BitrateModel.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/SampleFormats.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

extern "C"
{
#include <libavcodec/avcodec.h>
#include <libavutil/log.h>
#include <libavutil/opt.h>
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

/// A codec whose encoder refuses every bitrate that is not on its list.
class EncoderOfListedBitrates : public testing::TestWithParam<int>
{
protected:
    void SetUp() override { av_log_set_level(AV_LOG_QUIET); }
    void TearDown() override { av_log_set_level(AV_LOG_INFO); }
    static const CodecCapabilities& Codec() { return *CapabilitiesOf(GetParam()); }
    static bool Opens(const AVCodec& encoder, PictureSize size, AVRational rate, int format, int bitrate)
    {
        const Context context(avcodec_alloc_context3(&encoder));
        context->width = size.width;
        context->height = size.height;
        context->framerate = rate;
        context->time_base = av_inv_q(rate);
        context->pix_fmt = AVPixelFormatOf(format);
        context->bit_rate = bitrate;
        return avcodec_open2(context.get(), &encoder, nullptr) == 0;
    }
};

TEST_P(EncoderOfListedBitrates, OpensForEveryOfferedSizeRateFormatAndGrade)
{
    if (Codec().encoders.empty())
        GTEST_SKIP() << "no encoder here";
    const auto* encoder = avcodec_find_encoder_by_name(Codec().encoders.front().c_str());
    for (const auto size : Codec().codec->video.sizes)
        for (const auto rate : Codec().codec->video.rates)
            for (const int format : Codec().formats)
                for (const int grade : {0, 1, 2, 3})
                {
                    const int bitrate = VideoBitrate(Codec(), {size.width, size.height, av_q2d(rate), format},
                                                     IVXCodecs::QualityLevel{grade});
                    EXPECT_TRUE(Opens(*encoder, size, rate, format, bitrate))
                        << size.height << " lines, " << av_q2d(rate) << " fps, " << PixFormatName(format)
                        << ", " << bitrate << " b/s";
                }
}

INSTANTIATE_TEST_SUITE_P(Codecs, EncoderOfListedBitrates,
                         testing::Values(VXCodecID_DNxHD, VXCodecID_DV, VXCodecID_DVNTSC), CodecTestName);

/// What a codec that gives every frame the same length makes of one.
struct FrameCase
{
    const char* name;
    int codecID;
    const char* profile; ///< of libavcodec's encoder; empty for none
    IVXCodecs::QualityLevel grade;
    int format;
    PictureSize size;
    AVRational rate;
};

class EncoderOfEvenFrames : public testing::TestWithParam<FrameCase>
{
protected:
    static Context Open(const AVCodec& encoder)
    {
        const auto& test = GetParam();
        Context context(avcodec_alloc_context3(&encoder));
        context->width = test.size.width;
        context->height = test.size.height;
        context->framerate = test.rate;
        context->time_base = av_inv_q(test.rate);
        context->pix_fmt = AVPixelFormatOf(test.format);
        if (*test.profile)
            av_opt_set(context->priv_data, "profile", test.profile, 0);
        return avcodec_open2(context.get(), &encoder, nullptr) == 0 ? std::move(context) : nullptr;
    }
    static int BytesOfOneFrame(AVCodecContext& context)
    {
        const auto frame = BlankFrame(context);
        const Packet packet(av_packet_alloc());
        if (!frame || avcodec_send_frame(&context, frame.get()) < 0 ||
            avcodec_send_frame(&context, nullptr) < 0)
            return -1;
        return avcodec_receive_packet(&context, packet.get()) == 0 ? packet->size : -1;
    }
};

TEST_P(EncoderOfEvenFrames, MakesFramesOfTheBitrateGiven)
{
    const auto& test = GetParam();
    const auto& codec = *CapabilitiesOf(test.codecID);
    if (codec.encoders.empty())
        GTEST_SKIP() << "no encoder here";
    const auto context = Open(*avcodec_find_encoder_by_name(codec.encoders.front().c_str()));
    ASSERT_TRUE(context);
    const double rate = av_q2d(test.rate);
    const double made = 8.0 * BytesOfOneFrame(*context) * rate;
    const int given = VideoBitrate(codec, {test.size.width, test.size.height, rate, test.format}, test.grade);
    EXPECT_NEAR(1.0, made / given, 0.02) << made << " made, " << given << " given";
}

constexpr auto kFrameCases = std::to_array<FrameCase>({
    {"DV", VXCodecID_DV, "", IVXCodecs::QualityLevelNormal, VXPixFormat_YUV420P, {720, 576}, {25, 1}},
    {"DV50", VXCodecID_DV, "", IVXCodecs::QualityLevelNormal, kPixFormatYUV422P, {720, 576}, {25, 1}},
    {"DVNTSC",
     VXCodecID_DVNTSC,
     "",
     IVXCodecs::QualityLevelBest,
     kPixFormatYUV411P,
     {720, 480},
     {30000, 1001}},
    {"LB", VXCodecID_DNxHR, "dnxhr_lb", IVXCodecs::QualityLevelLow, kPixFormatYUV422P, {1280, 720}, {25, 1}},
    {"SQ",
     VXCodecID_DNxHR,
     "dnxhr_sq",
     IVXCodecs::QualityLevelNormal,
     kPixFormatYUV422P,
     {1920, 1080},
     {50, 1}},
    {"HQ",
     VXCodecID_DNxHR,
     "dnxhr_hq",
     IVXCodecs::QualityLevelHigh,
     kPixFormatYUV422P,
     {2048, 1152},
     {24, 1}},
    {"HQX",
     VXCodecID_DNxHR,
     "dnxhr_hqx",
     IVXCodecs::QualityLevelLow,
     kPixFormatYUV422P10,
     {3840, 2160},
     {30, 1}},
    {"Full",
     VXCodecID_DNxHR,
     "dnxhr_444",
     IVXCodecs::QualityLevelBest,
     kPixFormatYUV444P10,
     {960, 540},
     {25, 1}},
});
INSTANTIATE_TEST_SUITE_P(Codecs, EncoderOfEvenFrames, testing::ValuesIn(kFrameCases),
                         [](const auto& test) { return test.param.name; });

/// An open encoder; null when it does not open.
Context OpenSound(const CodecCapabilities& codec, const SoundStream& sound, IVXCodecs::QualityLevel level)
{
    const auto* encoder = avcodec_find_encoder_by_name(codec.encoders.front().c_str());
    Context context(avcodec_alloc_context3(encoder));
    context->strict_std_compliance = FF_COMPLIANCE_EXPERIMENTAL; // libavcodec's encoder of DTS wants it
    context->sample_rate = sound.sampleRate;
    context->time_base = {1, sound.sampleRate};
    context->sample_fmt = AVSampleFormatOf(sound.format);
    av_channel_layout_from_mask(&context->ch_layout, sound.layout);
    context->bit_rate = AudioBitrate(codec, sound, level);
    return avcodec_open2(context.get(), encoder, nullptr) == 0 ? std::move(context) : nullptr;
}

struct BlockCase
{
    const char* name;
    int codecID;
    std::uint64_t layout;
};

class EncoderOfBlocks : public testing::TestWithParam<BlockCase>
{
};

TEST_P(EncoderOfBlocks, MakesBlocksOfTheBitrateGiven)
{
    const auto& codec = *CapabilitiesOf(GetParam().codecID);
    if (codec.encoders.empty())
        GTEST_SKIP() << "no encoder here";
    const SoundStream sound{22050, GetParam().layout, codec.formats.front()};
    const auto context = OpenSound(codec, sound, IVXCodecs::QualityLevelNormal);
    ASSERT_TRUE(context);
    EXPECT_NEAR(8.0 * context->block_align * context->sample_rate / context->frame_size,
                AudioBitrate(codec, sound, IVXCodecs::QualityLevelNormal), 1.0);
}

constexpr auto kBlockCases = std::to_array<BlockCase>({{"IMAMono", VXCodecID_ADPCM, kMono},
                                                       {"IMAStereo", VXCodecID_ADPCM, kStereo},
                                                       {"MicrosoftMono", VXCodecID_ADPCMMS, kMono},
                                                       {"MicrosoftStereo", VXCodecID_ADPCMMS, kStereo}});
INSTANTIATE_TEST_SUITE_P(Codecs, EncoderOfBlocks, testing::ValuesIn(kBlockCases),
                         [](const auto& test) { return test.param.name; });

TEST(EncoderOfDTS, TakesEveryGradeOfEverySound)
{
    const auto& codec = *CapabilitiesOf(VXCodecID_DTS);
    if (codec.encoders.empty())
        GTEST_SKIP() << "no encoder here";
    for (const int rate : codec.sampleRates)
        for (const auto layout : codec.layouts)
            for (const int grade : {0, 1, 2, 3})
                EXPECT_TRUE(
                    OpenSound(codec, {rate, layout, codec.formats.front()}, IVXCodecs::QualityLevel{grade}))
                    << rate << ' ' << VXChannelLayoutName(layout) << " grade " << grade;
}

} // namespace

} // namespace Vexlor
