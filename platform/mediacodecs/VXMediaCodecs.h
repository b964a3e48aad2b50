#pragma once

#include "VXMediaCodecsExport.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{

class IVXRational;

// Codec identifiers. They stand in preset documents, so a number, once given, is never given again.

/// No codec: the Auto codec of a codec preset, the entry of a format preset that leaves the stream out.
inline constexpr int VXCodecID_None = 0;

inline constexpr int VXCodecID_H264 = 1;
inline constexpr int VXCodecID_HEVC = 2;
inline constexpr int VXCodecID_MPEG4 = 3; ///< MPEG-4 Part 2, Advanced Simple Profile
inline constexpr int VXCodecID_DIVX = 4;  ///< MPEG-4 Part 2 within the limits of DivX players
inline constexpr int VXCodecID_MPEG1 = 5;
inline constexpr int VXCodecID_MPEG2 = 6;
inline constexpr int VXCodecID_VP8 = 7;
inline constexpr int VXCodecID_VP9 = 8;
inline constexpr int VXCodecID_AV1 = 9;
inline constexpr int VXCodecID_Theora = 10;
inline constexpr int VXCodecID_H263 = 11;
inline constexpr int VXCodecID_H261 = 12;
inline constexpr int VXCodecID_WMV1 = 13;
inline constexpr int VXCodecID_WMV2 = 14;
inline constexpr int VXCodecID_MSMPEG4 = 15; ///< the MPEG-4 version 3 of early AVI and ASF files
inline constexpr int VXCodecID_FLV1 = 16;    ///< Sorenson Spark
inline constexpr int VXCodecID_MJPEG = 17;
inline constexpr int VXCodecID_ProRes = 18;
inline constexpr int VXCodecID_DNxHD = 19; ///< the raster sizes of high definition only
inline constexpr int VXCodecID_DNxHR = 20; ///< the same family at any size
inline constexpr int VXCodecID_DV = 21;    ///< of the systems with 25 frames a second
inline constexpr int VXCodecID_FFV1 = 22;
inline constexpr int VXCodecID_GIF = 23;
inline constexpr int VXCodecID_WebP = 24;   ///< animated
inline constexpr int VXCodecID_DVNTSC = 25; ///< DV of the systems with 30000/1001 frames a second

inline constexpr int VXCodecID_AAC = 1001;
inline constexpr int VXCodecID_MP3 = 1002;
inline constexpr int VXCodecID_MP2 = 1003;
inline constexpr int VXCodecID_AC3 = 1004;
inline constexpr int VXCodecID_Opus = 1005;
inline constexpr int VXCodecID_Vorbis = 1006;
inline constexpr int VXCodecID_FLAC = 1007;
inline constexpr int VXCodecID_PCM16 = 1008; ///< signed 16-bit little-endian samples
inline constexpr int VXCodecID_HEAAC = 1009; ///< AAC with spectral band replication
inline constexpr int VXCodecID_EAC3 = 1010;
inline constexpr int VXCodecID_DTS = 1011;
inline constexpr int VXCodecID_ALAC = 1012;
inline constexpr int VXCodecID_WMA1 = 1013;
inline constexpr int VXCodecID_WMA2 = 1014;
inline constexpr int VXCodecID_PCM24 = 1015;    ///< signed 24-bit little-endian samples
inline constexpr int VXCodecID_PCM32 = 1016;    ///< signed 32-bit little-endian samples
inline constexpr int VXCodecID_PCMFloat = 1017; ///< 32-bit float little-endian samples
inline constexpr int VXCodecID_ALaw = 1018;     ///< G.711, A-law
inline constexpr int VXCodecID_MuLaw = 1019;    ///< G.711, mu-law
inline constexpr int VXCodecID_ADPCM = 1020;    ///< IMA ADPCM in blocks as WAV files have them
inline constexpr int VXCodecID_ADPCMMS = 1021;  ///< Microsoft ADPCM
inline constexpr int VXCodecID_Speex = 1022;
inline constexpr int VXCodecID_AMRNB = 1023;
inline constexpr int VXCodecID_AMRWB = 1024;
inline constexpr int VXCodecID_WavPack = 1025;
inline constexpr int VXCodecID_TTA = 1026;
inline constexpr int VXCodecID_PCM16BE = 1027; ///< signed 16-bit big-endian samples
inline constexpr int VXCodecID_PCM24BE = 1028; ///< signed 24-bit big-endian samples

// What GetCodecType answers.
inline constexpr int VXCodecTypeUnknown = 0;
inline constexpr int VXCodecTypeVideo = 1;
inline constexpr int VXCodecTypeAudio = 2;

// Pixel formats; the numbers are kept in preset documents. All others have numbers in the runtime's own
// table.
inline constexpr int VXPixFormat_None = -1;
inline constexpr int VXPixFormat_YUV420P = 0; ///< planar YUV 4:2:0, 8 bits

// Sample formats, as above.
inline constexpr int VXSampleFormat_None = -1;
inline constexpr int VXSampleFormat_FLT = 3; ///< 32-bit float, interleaved

// Container names, as VXMediaCodecSupportOutputAllMediaFormats lists them.
inline constexpr const char* VXFormatNameAVI = "AVI";
inline constexpr const char* VXFormatNameMPG = "MPG"; ///< MPEG program stream

/// Television standard of DVD, 1080i and 720p material.
enum TVStandNorm : int
{
    TVStandNormPAL = 0,
    TVStandNormNTSC = 1,
};

/// Shape of the picture on the screen.
enum TVAspectType : int
{
    TVAspectType16x9 = 0,
    TVAspectType4x3 = 1,
};

/// Every container name that can be written here, in the order in which a user would be offered them.
VX_MEDIACODECS_API std::vector<std::string> VXMediaCodecSupportOutputAllMediaFormats();

/// Display text of a size in pixels: "1920 x 1080".
VX_MEDIACODECS_API std::string VXMediaCodecFormatResolution(int width, int height);
/// Display text of a sample rate in Hz: "44.1 kHz".
VX_MEDIACODECS_API std::string VXMediaCodecFormatSamplerate(int samplerate);
/// Display name of a channel layout, a mask with one bit a loudspeaker: "Stereo", "5.1". A mask without a
/// name of its own is named by its number of channels.
VX_MEDIACODECS_API std::string VXChannelLayoutName(std::uint64_t layout);
/// Display name of a pixel format; empty for a number that is not known.
VX_MEDIACODECS_API std::string PixFormatName(int format);
/// Display name of a sample format; empty for a number that is not known.
VX_MEDIACODECS_API std::string SampleFormatName(int format);

/// Sample aspect ratio of DVD pictures (720 x 480 NTSC, 720 x 576 PAL), a new object. A norm or aspect
/// outside the enumerations reads as PAL or 16:9.
VX_MEDIACODECS_API std::shared_ptr<IVXRational> VXMediaCodecDVDSampleAspectRatio(TVStandNorm norm,
                                                                                 TVAspectType aspect);
/// Sample aspect ratio of DVCPRO HD 1080i pictures (1280 x 1080 NTSC, 1440 x 1080 PAL); as above.
VX_MEDIACODECS_API std::shared_ptr<IVXRational> VXMediaCodecDVHDSampleAspectRatio(TVStandNorm norm,
                                                                                  TVAspectType aspect);
/// Sample aspect ratio of DVCPRO HD 720p pictures (960 x 720); as above.
VX_MEDIACODECS_API std::shared_ptr<IVXRational> VXMediaCodecDVHD720PSampleAspectRatio(TVStandNorm norm,
                                                                                      TVAspectType aspect);

} // namespace Vexlor
