#pragma once

#include "catalog/icons/Faces.h"

#include "IVXSampleAspectPreset.h"
#include "VXMediaCodecs.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace Vexlor::Catalog
{

/// A container's name and its icon's key in the artwork file.
struct Container
{
    std::string_view name;
    int faceID;
};

struct Size
{
    int width = 0;
    int height = 0;
};

/// Bounds of a bitrate in kilobits a second; 0 for none.
///
/// They are what a document keeps of quality: the library reads neither a grade nor a bitrate of one's own.
/// The grades lie between them in thirds, so where an encoder takes certain bitrates only, all four are to be
/// such.
struct Kilobits
{
    int least = 0;
    int most = 0;
};

/// What is chosen for the pictures. What is not said is left to the source, or to the encoder.
struct Picture
{
    int codec = VXCodecID_None;
    Size size = {}; ///< the chosen one
    Size most = {}; ///< the largest
    int rateNum = 0;
    int rateDen = 1;
    std::string_view profile = {}; ///< by the names that docs/codecs.md has
    std::string_view level = {};
    std::string_view format = {};
    IVXSampleAspectPreset::AspectPresetType aspect = IVXSampleAspectPreset::AspectDefault;
    Size samples = {}; ///< the ratio of AspectCustom
    Kilobits kilobits = {};

    /// That size and no other.
    constexpr Picture At(int width, int height) const
    {
        auto picture = Within(width, height);
        picture.size = {width, height};
        return picture;
    }
    /// The source's size, as far as it is within that one.
    constexpr Picture Within(int width, int height) const
    {
        auto picture = *this;
        picture.most = {width, height};
        return picture;
    }
    constexpr Picture Rate(int num, int den = 1) const
    {
        auto picture = *this;
        picture.rateNum = num;
        picture.rateDen = den;
        return picture;
    }
    constexpr Picture Profile(std::string_view name, std::string_view levelName = {}) const
    {
        auto picture = *this;
        picture.profile = name;
        picture.level = levelName;
        return picture;
    }
    constexpr Picture Format(std::string_view name) const
    {
        auto picture = *this;
        picture.format = name;
        return picture;
    }
    constexpr Picture Shape(IVXSampleAspectPreset::AspectPresetType type) const
    {
        auto picture = *this;
        picture.aspect = type;
        return picture;
    }
    constexpr Picture Samples(int num, int den) const
    {
        auto picture = Shape(IVXSampleAspectPreset::AspectCustom);
        picture.samples = {num, den};
        return picture;
    }
    // With a lower bound, too: the codec's own would be that of the source's size, before it is bounded.
    constexpr Picture UpTo(int highest) const { return Between(highest / 8, highest); }
    constexpr Picture Exactly(int bitrate) const { return Between(bitrate, bitrate); }
    constexpr Picture Between(int lowest, int highest) const
    {
        auto picture = *this;
        picture.kilobits = {lowest, highest};
        return picture;
    }
};

/// What is chosen for the sound, likewise.
struct Sound
{
    int codec = VXCodecID_None;
    int rate = 0;
    std::uint64_t layout = 0;
    std::string_view format = {};
    Kilobits kilobits = {};

    constexpr Sound Mono(int hertz) const { return As(0x4, hertz); }
    constexpr Sound Stereo(int hertz) const { return As(0x3, hertz); }
    constexpr Sound Hertz(int hertz) const { return As(layout, hertz); }
    constexpr Sound As(std::uint64_t mask, int hertz) const
    {
        auto sound = *this;
        sound.layout = mask;
        sound.rate = hertz;
        return sound;
    }
    constexpr Sound Format(std::string_view name) const
    {
        auto sound = *this;
        sound.format = name;
        return sound;
    }
    constexpr Sound Exactly(int bitrate) const { return Between(bitrate, bitrate); }
    constexpr Sound Between(int lowest, int highest) const
    {
        auto sound = *this;
        sound.kilobits = {lowest, highest};
        return sound;
    }
};

struct Preset
{
    std::string_view name;
    std::string_view when; ///< to pick it
    Container container;
    Picture picture = {};
    Sound sound = {};
};

/// What of the container's codecs a group's presets have on offer.
enum class Offer
{
    Everything, ///< all of them
    Chosen,     ///< the chosen one: a device or a site takes no other
};

/// A category below the root, or one below that.
struct Group
{
    std::string_view category;
    std::string_view child; ///< empty: the category itself
    std::string_view description;
    int faceID;
    Offer offer = Offer::Everything;
    std::span<const Preset> presets = {};
};

/// The groups in the order of the tree, each category before its children; one file each.
std::span<const Group> GeneralGroups();
std::span<const Group> VideoGroups();
std::span<const Group> AudioGroups();
std::span<const Group> DeviceGroups();
std::span<const Group> WebVideoGroups();
std::span<const Group> UserGroups();

using Icons = IVXArtworkImageMgr;

inline constexpr Container kMP4{"MP4", Icons::FormatFaceIDMP4};
inline constexpr Container kMOV{"MOV", FormatFaceIDMOV};
inline constexpr Container kMKV{"MKV", Icons::FormatFaceIDMKV};
inline constexpr Container kWEBM{"WEBM", Icons::FormatFaceIDWEBM};
inline constexpr Container kAVI{"AVI", Icons::FormatFaceIDAVI};
inline constexpr Container kMPG{"MPG", FormatFaceIDMPG};
inline constexpr Container kM4V{"M4V", FormatFaceIDVideo};
inline constexpr Container kVOB{"VOB", FormatFaceIDVideo};
inline constexpr Container kTS{"TS", FormatFaceIDVideo};
inline constexpr Container kM2TS{"M2TS", FormatFaceIDVideo};
inline constexpr Container kWMV{"WMV", FormatFaceIDVideo};
inline constexpr Container kASF{"ASF", FormatFaceIDVideo};
inline constexpr Container kFLV{"FLV", FormatFaceIDVideo};
inline constexpr Container kF4V{"F4V", FormatFaceIDVideo};
inline constexpr Container k3GP{"3GP", FormatFaceIDVideo};
inline constexpr Container kOGV{"OGV", FormatFaceIDVideo};
inline constexpr Container kMXF{"MXF", FormatFaceIDVideo};
inline constexpr Container kDVFile{"DV", FormatFaceIDVideo};
inline constexpr Container kGIFFile{"GIF", FormatFaceIDVideo};
inline constexpr Container kWEBPFile{"WEBP", FormatFaceIDVideo};
inline constexpr Container kMP3File{"MP3", Icons::FormatFaceIDMP3};
inline constexpr Container kM4A{"M4A", Icons::FormatFaceIDM4A};
inline constexpr Container kAACFile{"AAC", FormatFaceIDAudio};
inline constexpr Container kWAV{"WAV", Icons::FormatFaceIDWAV};
inline constexpr Container kWMA{"WMA", Icons::FormatFaceIDWMA};
inline constexpr Container kFLACFile{"FLAC", FormatFaceIDFLAC};
inline constexpr Container kOGG{"OGG", FormatFaceIDOGG};
inline constexpr Container kOPUSFile{"OPUS", FormatFaceIDAudio};
inline constexpr Container kAC3File{"AC3", FormatFaceIDAudio};
inline constexpr Container kAIFF{"AIFF", FormatFaceIDAudio};
inline constexpr Container kCAF{"CAF", FormatFaceIDAudio};
inline constexpr Container kMKA{"MKA", FormatFaceIDAudio};

inline constexpr Picture kNoPicture{};
inline constexpr Picture kH264{VXCodecID_H264};
inline constexpr Picture kHEVC{VXCodecID_HEVC};
inline constexpr Picture kAV1{VXCodecID_AV1};
inline constexpr Picture kVP9{VXCodecID_VP9};
inline constexpr Picture kVP8{VXCodecID_VP8};
inline constexpr Picture kMPEG1{VXCodecID_MPEG1};
inline constexpr Picture kMPEG2{VXCodecID_MPEG2};
inline constexpr Picture kMPEG4{VXCodecID_MPEG4};
inline constexpr Picture kDivX{VXCodecID_DIVX};
inline constexpr Picture kMSMPEG4{VXCodecID_MSMPEG4};
inline constexpr Picture kWMV2{VXCodecID_WMV2};
inline constexpr Picture kH263{VXCodecID_H263};
inline constexpr Picture kTheora{VXCodecID_Theora};
inline constexpr Picture kMJPEG{VXCodecID_MJPEG};
inline constexpr Picture kProRes{VXCodecID_ProRes};
inline constexpr Picture kDNxHD{VXCodecID_DNxHD};
inline constexpr Picture kDNxHR{VXCodecID_DNxHR};
inline constexpr Picture kDV{VXCodecID_DV};
inline constexpr Picture kDVNTSC{VXCodecID_DVNTSC};
inline constexpr Picture kFFV1{VXCodecID_FFV1};
inline constexpr Picture kGIF{VXCodecID_GIF};
inline constexpr Picture kWebP{VXCodecID_WebP};

inline constexpr Sound kNoSound{};
inline constexpr Sound kAAC{VXCodecID_AAC};
inline constexpr Sound kMP3{VXCodecID_MP3};
inline constexpr Sound kMP2{VXCodecID_MP2};
inline constexpr Sound kAC3{VXCodecID_AC3};
inline constexpr Sound kEAC3{VXCodecID_EAC3};
inline constexpr Sound kDTS{VXCodecID_DTS};
inline constexpr Sound kOpus{VXCodecID_Opus};
inline constexpr Sound kVorbis{VXCodecID_Vorbis};
inline constexpr Sound kFLAC{VXCodecID_FLAC};
inline constexpr Sound kALAC{VXCodecID_ALAC};
inline constexpr Sound kWMA2{VXCodecID_WMA2};
inline constexpr Sound kPCM16{VXCodecID_PCM16};
inline constexpr Sound kPCM24{VXCodecID_PCM24};
inline constexpr Sound kPCMFloat{VXCodecID_PCMFloat};
inline constexpr Sound kPCM16BE{VXCodecID_PCM16BE};
inline constexpr Sound kALaw{VXCodecID_ALaw};
inline constexpr Sound kMuLaw{VXCodecID_MuLaw};
inline constexpr Sound kADPCM{VXCodecID_ADPCM};

inline constexpr int k44k = 44'100;
inline constexpr int k48k = 48'000;

} // namespace Vexlor::Catalog
