#include "DefaultTree.h"

#include "catalog/icons/Faces.h"

#include "IVXCodecPreset.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "VXMediaCodecs.h"

#include <array>
#include <string>
#include <string_view>

namespace Vexlor::Tool
{

namespace
{

// Keys of the icons in the artwork file.
using Icons = IVXArtworkImageMgr;
constexpr int kFaceCustomize = Icons::CategoryFaceIDCustomize;
constexpr int kFaceRecentList = Icons::CategoryFaceIDRecentList;
constexpr int kFaceGeneral = Icons::CategoryFaceIDGeneral;
constexpr int kFaceVideo = Icons::CategoryFaceIDVideo;
constexpr int kFaceAudio = Icons::CategoryFaceIDAudio;
constexpr int kFaceDevice = Icons::CategoryFaceIDDevice;
constexpr int kFaceWebVideo = Icons::CategoryFaceIDWebVideo;

struct CategoryRow
{
    std::string_view name;
    std::string_view description;
    int faceID;
};

constexpr std::array kCategories{
    CategoryRow{"General", "For most purposes", kFaceGeneral},
    CategoryRow{"Video", "Every container of pictures and sound", kFaceVideo},
    CategoryRow{"Audio", "Every container of sound", kFaceAudio},
    CategoryRow{"Devices", "Within what players of a kind can show", kFaceDevice},
    CategoryRow{"Web Video", "For upload and for web pages", kFaceWebVideo},
    CategoryRow{"Customised", "Presets of your own", kFaceCustomize},
    CategoryRow{"Recently Used", "What you chose last", kFaceRecentList},
};

/// A container's name and its icon's key in the artwork file.
struct Container
{
    std::string_view name;
    int faceID = 0;
};

constexpr Container kInMP4{"MP4", Icons::FormatFaceIDMP4};
constexpr Container kInAVI{"AVI", Icons::FormatFaceIDAVI};
constexpr Container kInWEBM{"WEBM", Icons::FormatFaceIDWEBM};
constexpr Container kInMKV{"MKV", Icons::FormatFaceIDMKV};
constexpr Container kInMP3{"MP3", Icons::FormatFaceIDMP3};
constexpr Container kInM4A{"M4A", Icons::FormatFaceIDM4A};
constexpr Container kInWAV{"WAV", Icons::FormatFaceIDWAV};
constexpr Container kInMOV{"MOV", Catalog::FormatFaceIDMOV};
constexpr Container kInMPG{"MPG", Catalog::FormatFaceIDMPG};
constexpr Container kInFLAC{"FLAC", Catalog::FormatFaceIDFLAC};
constexpr Container kInOGG{"OGG", Catalog::FormatFaceIDOGG};

/// Upper bounds in pixels and in kilobits per second; 0 for none.
struct Bounds
{
    int width = 0;
    int height = 0;
    int videoKilobits = 0;
    int audioKilobits = 0;
};

struct PresetRow
{
    std::string_view category;
    std::string_view name;
    std::string_view description;
    Container container;
    int video;
    int audio;
    Bounds bounds = {};
};

constexpr int kH264 = VXCodecID_H264;
constexpr int kHEVC = VXCodecID_HEVC;
constexpr int kMPEG2 = VXCodecID_MPEG2;
constexpr int kMPEG4 = VXCodecID_MPEG4;
constexpr int kDIVX = VXCodecID_DIVX;
constexpr int kVP9 = VXCodecID_VP9;
constexpr int kNone = VXCodecID_None;
constexpr int kAAC = VXCodecID_AAC;
constexpr int kMP2 = VXCodecID_MP2;
constexpr int kMP3 = VXCodecID_MP3;
constexpr int kOpus = VXCodecID_Opus;
constexpr int kVorbis = VXCodecID_Vorbis;
constexpr int kFLAC = VXCodecID_FLAC;
constexpr int kPCM16 = VXCodecID_PCM16;

// H.264 for upload: the upper ends of support.google.com/youtube, answer 1722171, at up to 60 frames per
// second. VP9: 150 % of the targets at 60 frames per second of developers.google.com/media/vp9/settings/vod.
// Devices: the bitrates of H.264 levels 3.1 and 4 and of HEVC level 5.1, main tier, which players of the kind
// take.
constexpr std::array kPresets{
    PresetRow{"General", "Small Video 480p", "For messages", kInMP4, kH264, kAAC, {854, 480, 2'500, 128}},
    PresetRow{"General", "HD Video 720p", "Plays anywhere", kInMP4, kH264, kAAC, {1280, 720, 7'500, 192}},
    PresetRow{
        "General", "Full HD Video 1080p", "Plays anywhere", kInMP4, kH264, kAAC, {1920, 1080, 12'000, 256}},
    PresetRow{
        "General", "4K Video 2160p", "For large screens", kInMP4, kHEVC, kAAC, {3840, 2160, 40'000, 384}},
    PresetRow{"General", "Music", "Plays anywhere", kInMP3, kNone, kMP3, {0, 0, 0, 320}},
    PresetRow{"General", "Lossless Music", "Nothing is lost", kInFLAC, kNone, kFLAC},

    PresetRow{"Video", "MP4", "H.264 and AAC", kInMP4, kH264, kAAC},
    PresetRow{"Video", "MOV", "H.264 and AAC", kInMOV, kH264, kAAC},
    PresetRow{"Video", "MKV", "HEVC and AAC", kInMKV, kHEVC, kAAC},
    PresetRow{"Video", "WEBM", "VP9 and Opus", kInWEBM, kVP9, kOpus},
    PresetRow{"Video", "AVI", "MPEG-4 and MP3", kInAVI, kMPEG4, kMP3},
    PresetRow{"Video", "MPG", "MPEG-2 and MP2", kInMPG, kMPEG2, kMP2},

    PresetRow{"Audio", "MP3", "Plays anywhere", kInMP3, kNone, kMP3},
    PresetRow{"Audio", "M4A", "AAC", kInM4A, kNone, kAAC},
    PresetRow{"Audio", "WAV", "Uncompressed", kInWAV, kNone, kPCM16},
    PresetRow{"Audio", "FLAC", "Compressed without loss", kInFLAC, kNone, kFLAC},
    PresetRow{"Audio", "OGG", "Vorbis", kInOGG, kNone, kVorbis},

    PresetRow{"Devices", "Phone", "H.264 level 3.1", kInMP4, kH264, kAAC, {1280, 720, 14'000, 192}},
    PresetRow{"Devices", "Tablet", "H.264 level 4", kInMP4, kH264, kAAC, {1920, 1080, 20'000, 256}},
    PresetRow{"Devices", "4K Television", "HEVC level 5.1", kInMP4, kHEVC, kAAC, {3840, 2160, 40'000, 384}},
    PresetRow{"Devices", "DivX Player", "Disc players of old", kInAVI, kDIVX, kMP3, {720, 576, 4'000, 192}},

    PresetRow{"Web Video", "Upload 720p", "H.264 and AAC", kInMP4, kH264, kAAC, {1280, 720, 7'500, 384}},
    PresetRow{"Web Video", "Upload 1080p", "H.264 and AAC", kInMP4, kH264, kAAC, {1920, 1080, 12'000, 384}},
    PresetRow{"Web Video", "Web Page 720p", "VP9 and Opus", kInWEBM, kVP9, kOpus, {1280, 720, 2'700, 128}},
    PresetRow{"Web Video", "Web Page 1080p", "VP9 and Opus", kInWEBM, kVP9, kOpus, {1920, 1080, 4'500, 128}},
};

/// Position of the codec's preset; where it is not offered, of the first real one.
template <typename Presets>
int PositionOf(const Presets& presets, int codecID)
{
    int position = -1;
    for (int i = 0; i < static_cast<int>(presets.size()); ++i)
    {
        const auto& preset = presets[static_cast<std::size_t>(i)];
        if (preset->CodecID() == codecID)
            return i;
        if (position < 0 && !preset->IsAutoValue())
            position = i;
    }
    return position;
}

int BitrateOf(int kilobits)
{
    constexpr int kNotGiven = -1;
    return kilobits == 0 ? kNotGiven : kilobits * 1'000;
}

std::shared_ptr<IVXFormatPreset> PresetOf(const PresetRow& row)
{
    auto preset = IVXFormatPreset::MallocFormatPreset(std::string(row.container.name), {});
    if (!preset)
        return preset;
    preset->SetName(std::string(row.name));
    preset->SetDescription(std::string(row.description));
    preset->SetFaceID(row.container.faceID);
    preset->SetIndexForVideoCodecPresets(PositionOf(preset->VideoCodecPresets(), row.video));
    preset->SetIndexForAudioCodecPresets(PositionOf(preset->AudioCodecPresets(), row.audio));
    preset->SetMaxWidth(row.bounds.width);
    preset->SetMaxHeight(row.bounds.height);
    preset->SetMaxVideoBitrate(BitrateOf(row.bounds.videoKilobits));
    preset->SetMaxAudioBitrate(BitrateOf(row.bounds.audioKilobits));
    return preset;
}

void AddCategory(const std::shared_ptr<IVXFormatNode>& root, const CategoryRow& row)
{
    const auto node = IVXFormatNode::MallocFormatNode(root);
    node->SetName(std::string(row.name));
    node->SetDescription(std::string(row.description));
    node->SetFaceID(row.faceID);
    for (const auto& preset : kPresets)
        if (preset.category == row.name)
            node->AddFormatPreset(PresetOf(preset)); // nothing where the container cannot be written here
}

} // namespace

std::shared_ptr<IVXFormatNode> DefaultTree()
{
    auto root = IVXFormatNode::MallocFormatNode(std::shared_ptr<IVXFormatNode>());
    root->SetName("Presets");
    for (const auto& category : kCategories)
        AddCategory(root, category);
    // Through a document once: reading completes the lists, so that what is written reads back the same.
    return IVXFormatNode::MallocFormatNode(root->JsonValue());
}

} // namespace Vexlor::Tool
