#include "Sources.h"

#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "StreamLine.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/PixelFormats.h"
#include "runtime/mediacodecs/SampleFormats.h"

#include <array>

namespace Vexlor
{

namespace
{

constexpr int kH264 = VXCodecID_H264;
constexpr int kHEVC = VXCodecID_HEVC;
constexpr int kMPEG2 = VXCodecID_MPEG2;
constexpr int kMPEG4 = VXCodecID_MPEG4;
constexpr int kAAC = VXCodecID_AAC;
constexpr int kAC3 = VXCodecID_AC3;
constexpr int kMP3 = VXCodecID_MP3;
constexpr int kPCM = VXCodecID_PCM16;
constexpr int kTenBits = kPixFormatYUV420P10;
constexpr int k420 = VXPixFormat_YUV420P;

constexpr std::array kSources{
    SourceRow{
        "2160p60-10bit", {kHEVC, 3840, 2160, 60, 1, kTenBits, 1, 1, 45'000}, {kAAC, 48'000, kStereo, 256}},
    SourceRow{"1080p30", {kH264, 1920, 1080, 30, 1, k420, 1, 1, 8'000}, {kAAC, 48'000, kStereo, 192}},
    SourceRow{"576-anamorphic",
              {kMPEG2, 720, 576, 25, 1, k420, 64, 45, 6'000},
              {VXCodecID_MP2, 48'000, kStereo, 256}},
    SourceRow{
        "phone-upright", {kHEVC, 1080, 1920, 30'000, 1'001, k420, 1, 1, 8'000}, {kAAC, 44'100, kMono, 96}},
    SourceRow{"240p15", {kMPEG4, 320, 240, 15, 1, k420, 1, 1, 300}, {kMP3, 22'050, kMono, 56}},
    SourceRow{"film-5.1",
              {kH264, 1920, 800, 24'000, 1'001, k420, 1, 1, 10'000},
              {kAC3, 48'000, kLayout51Side, 448}},
    SourceRow{"voice-8k", {kH264, 640, 480, 25, 1, k420, 1, 1, 800}, {VXCodecID_AMRNB, 8'000, kMono, 12}},
    SourceRow{"audio-only", {}, {VXCodecID_FLAC, 44'100, kStereo, 900}},
    SourceRow{"video-only", {kH264, 1280, 720, 50, 1, k420, 1, 1, 5'000}, {}},
    // sizes and shapes
    SourceRow{"4320p30", {kHEVC, 7680, 4320, 30, 1, kTenBits, 1, 1, 100'000}, {kAAC, 48'000, kStereo, 320}},
    SourceRow{"dci-4k-24",
              {VXCodecID_ProRes, 4096, 2160, 24, 1, kPixFormatYUV422P10, 1, 1, 700'000},
              {kPCM, 48'000, kLayout51, 4'608}},
    SourceRow{"1440p144",
              {VXCodecID_AV1, 2560, 1440, 144, 1, k420, 1, 1, 30'000},
              {VXCodecID_Opus, 48'000, kStereo, 160}},
    SourceRow{"ultrawide", {kH264, 3440, 1440, 60, 1, k420, 1, 1, 25'000}, {kAAC, 48'000, kStereo, 192}},
    SourceRow{
        "1080p59.94", {kH264, 1920, 1080, 60'000, 1'001, k420, 1, 1, 16'000}, {kAAC, 48'000, kStereo, 192}},
    SourceRow{"1080p120-slow", {kHEVC, 1920, 1080, 120, 1, k420, 1, 1, 40'000}, {kAAC, 44'100, kStereo, 128}},
    SourceRow{"1080p23.976",
              {kH264, 1920, 1080, 24'000, 1'001, k420, 1, 1, 12'000},
              {VXCodecID_DTS, 48'000, kLayout51Side, 1'509}},
    SourceRow{"1080-anamorphic",
              {kMPEG2, 1440, 1080, 25, 1, k420, 4, 3, 25'000},
              {VXCodecID_MP2, 48'000, kStereo, 384}},
    SourceRow{"720p25", {kH264, 1280, 720, 25, 1, k420, 1, 1, 3'000}, {kAAC, 44'100, kStereo, 128}},
    SourceRow{"720p59.94",
              {kMPEG2, 1280, 720, 60'000, 1'001, k420, 1, 1, 15'000},
              {kAC3, 48'000, kLayout51Side, 384}},
    SourceRow{
        "480-ntsc-4x3", {kMPEG2, 720, 480, 30'000, 1'001, k420, 8, 9, 5'000}, {kAC3, 48'000, kStereo, 192}},
    SourceRow{"480p-odd",
              {VXCodecID_VP8, 853, 479, 30, 1, k420, 1, 1, 1'000},
              {VXCodecID_Vorbis, 44'100, kStereo, 128}},
    SourceRow{"square", {kH264, 1080, 1080, 30, 1, k420, 1, 1, 5'000}, {kAAC, 44'100, kStereo, 128}},
    SourceRow{
        "upright-2160", {kHEVC, 2160, 3840, 60, 1, kTenBits, 1, 1, 50'000}, {kAAC, 48'000, kStereo, 192}},
    SourceRow{"qcif", {VXCodecID_H263, 176, 144, 15, 1, k420, 1, 1, 64}, {VXCodecID_AMRNB, 8'000, kMono, 12}},
    SourceRow{"tiny", {VXCodecID_GIF, 32, 18, 10, 1, k420, 1, 1, 0}, {}},
    SourceRow{
        "dv-pal", {VXCodecID_DV, 720, 576, 25, 1, k420, 16, 15, 28'800}, {kPCM, 32'000, kStereo, 1'024}},
    SourceRow{"dv-ntsc",
              {VXCodecID_DVNTSC, 720, 480, 30'000, 1'001, kPixFormatYUV411P, 8, 9, 28'771},
              {kPCM, 48'000, kStereo, 1'536}},
    // formats and rates
    SourceRow{"rgb-screen",
              {VXCodecID_FFV1, 1920, 1200, 30, 1, kPixFormatBGR0, 1, 1, 90'000},
              {VXCodecID_FLAC, 48'000, kStereo, 900}},
    SourceRow{"422-8bit",
              {VXCodecID_DNxHD, 1920, 1080, 25, 1, kPixFormatYUV422P, 1, 1, 120'000},
              {VXCodecID_PCM24, 48'000, kStereo, 2'304}},
    SourceRow{"444-screen",
              {kH264, 1366, 768, 30, 1, kPixFormatYUV444P, 1, 1, 3'000},
              {kAAC, 44'100, kStereo, 128}},
    SourceRow{"gray-12fps", {VXCodecID_MJPEG, 1024, 768, 12, 1, kPixFormatGray8, 1, 1, 8'000}, {}},
    SourceRow{"rate-unknown", {kH264, 1280, 720, 0, 1, k420, 1, 1, 0}, {kAAC, 48'000, kStereo, 0}},
    SourceRow{"size-unknown", {kH264, 0, 0, 25, 1, k420, 1, 1, 2'000}, {kAAC, 48'000, 0, 128}},
    SourceRow{"rate-1fps", {kH264, 1280, 720, 1, 1, k420, 1, 1, 100}, {kMP3, 44'100, kStereo, 128}},
    // sound
    SourceRow{"sound-mono-8k", {}, {VXCodecID_ALaw, 8'000, kMono, 64}},
    SourceRow{"sound-11k", {}, {VXCodecID_ADPCM, 11'025, kMono, 44}},
    SourceRow{"sound-5.1-96k", {}, {VXCodecID_FLAC, 96'000, kLayout51, 6'000}},
    SourceRow{"sound-7.1-192k", {}, {VXCodecID_PCM24, 192'000, kLayout71, 36'864}},
    SourceRow{"sound-quad", {}, {VXCodecID_Vorbis, 44'100, kQuad, 256}},
    SourceRow{"sound-mp3-320", {}, {kMP3, 44'100, kStereo, 320}},
};
static_assert(kSources.size() == 40);

std::shared_ptr<IVXCodecParameter> PictureOf(const SourceRow& row)
{
    const auto& from = row.picture;
    auto picture = IVXCodecParameter::MallocCodecParamter(from.codec);
    picture->SetWidth(from.width);
    picture->SetHeight(from.height);
    picture->SetFramePerSecond(IVXRational::MallocRational(from.rateNum, from.rateDen));
    picture->SetFormat(from.format);
    picture->SetAspectRatio(IVXRational::MallocRational(from.sampleNum, from.sampleDen));
    picture->SetBitrate(from.kilobits * 1'000);
    return picture;
}

std::shared_ptr<IVXCodecParameter> SoundOf(const SourceRow& row)
{
    auto sound = IVXCodecParameter::MallocCodecParamter(row.sound.codec);
    sound->SetSampleRate(row.sound.rate);
    sound->SetChannelLayout(row.sound.layout);
    sound->SetFormat(kSampleFormatS16);
    sound->SetBitrate(row.sound.kilobits * 1'000);
    return sound;
}

} // namespace

std::span<const SourceRow> Sources() { return kSources; }

std::shared_ptr<const IVXFormatParameter> ParameterOf(const SourceRow& row)
{
    const auto source = IVXFormatParameter::MallocFormatParameter("", "");
    if (row.picture.codec != VXCodecID_None)
        source->SetVideoCodecParameter(PictureOf(row));
    if (row.sound.codec != VXCodecID_None)
        source->SetAudioCodecParameter(SoundOf(row));
    return source;
}

std::string OutlineOf(const SourceRow& row) { return LineOf(*ParameterOf(row)); }

} // namespace Vexlor
