#include "CodecLists.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/BitrateModel.h"
#include "runtime/mediacodecs/SampleFormats.h"

#include <gtest/gtest.h>

#include <memory>

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

/// A codec whose encoder refuses every bitrate that is not on its list.
class EncoderOfListedBitrates : public testing::TestWithParam<int>
{
protected:
    void SetUp() override { av_log_set_level(AV_LOG_QUIET); }
    void TearDown() override { av_log_set_level(AV_LOG_INFO); }
    static const CodecCapabilities& Codec() { return *CapabilitiesOf(GetParam()); }
    static bool Opens(const AVCodec& encoder, PictureSize size, AVRational rate, int format, int bitrate)
    {
        const std::unique_ptr<AVCodecContext, FreeContext> context(avcodec_alloc_context3(&encoder));
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

int OpenSound(const AVCodec& encoder, const SoundStream& sound, int bitrate)
{
    const std::unique_ptr<AVCodecContext, FreeContext> context(avcodec_alloc_context3(&encoder));
    context->strict_std_compliance = FF_COMPLIANCE_EXPERIMENTAL; // libavcodec's encoder of DTS wants it
    context->sample_rate = sound.sampleRate;
    context->time_base = {1, sound.sampleRate};
    context->sample_fmt = AVSampleFormatOf(sound.format);
    av_channel_layout_from_mask(&context->ch_layout, sound.layout);
    context->bit_rate = bitrate;
    return avcodec_open2(context.get(), &encoder, nullptr);
}

TEST(EncoderOfDTS, TakesEveryGradeOfEverySound)
{
    const auto& codec = *CapabilitiesOf(VXCodecID_DTS);
    if (codec.encoders.empty())
        GTEST_SKIP() << "no encoder here";
    const auto* encoder = avcodec_find_encoder_by_name(codec.encoders.front().c_str());
    for (const int rate : codec.sampleRates)
        for (const auto layout : codec.layouts)
            for (const int grade : {0, 1, 2, 3})
            {
                const SoundStream sound{rate, layout, codec.formats.front()};
                const int bitrate = AudioBitrate(codec, sound, IVXCodecs::QualityLevel{grade});
                EXPECT_EQ(0, OpenSound(*encoder, sound, bitrate))
                    << rate << ' ' << VXChannelLayoutName(layout);
            }
}

} // namespace

} // namespace Vexlor
