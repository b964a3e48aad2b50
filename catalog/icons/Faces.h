#pragma once

#include "IVXArtworkImageMgr.h"

#include <array>
#include <string_view>

namespace Vexlor::Catalog
{

// Families of devices, in the categories' range.
inline constexpr int CategoryFaceIDPhone = 10000100;
inline constexpr int CategoryFaceIDTablet = 10000101;
inline constexpr int CategoryFaceIDTelevision = 10000102;
inline constexpr int CategoryFaceIDConsole = 10000103;
inline constexpr int CategoryFaceIDCamera = 10000104;
inline constexpr int CategoryFaceIDDisc = 10000105;

// Formats beyond those that IVXArtworkImageMgr names, in the same two ranges.
inline constexpr int FormatFaceIDMOV = 20000004;
inline constexpr int FormatFaceIDMPG = 20000005;
inline constexpr int FormatFaceIDVideo = 20000006; ///< any other container of pictures and sound
inline constexpr int FormatFaceIDFLAC = 20001004;
inline constexpr int FormatFaceIDOGG = 20001005;
inline constexpr int FormatFaceIDAudio = 20001006; ///< any other container of sound

/// An icon of ours: its key in the artwork file, the key's name, and the SVG of this folder that it is made
/// of.
struct Face
{
    int id;
    std::string_view name;
    std::string_view picture;
};

inline constexpr std::array kFaces{
    Face{IVXArtworkImageMgr::CategoryFaceIDCustomize, "CategoryFaceIDCustomize", "category-customize.svg"},
    Face{IVXArtworkImageMgr::CategoryFaceIDRecentList, "CategoryFaceIDRecentList",
         "category-recent-list.svg"},
    Face{IVXArtworkImageMgr::CategoryFaceIDGeneral, "CategoryFaceIDGeneral", "category-general.svg"},
    Face{IVXArtworkImageMgr::CategoryFaceIDVideo, "CategoryFaceIDVideo", "category-video.svg"},
    Face{IVXArtworkImageMgr::CategoryFaceIDAudio, "CategoryFaceIDAudio", "category-audio.svg"},
    Face{IVXArtworkImageMgr::CategoryFaceIDDevice, "CategoryFaceIDDevice", "category-device.svg"},
    Face{IVXArtworkImageMgr::CategoryFaceIDWebVideo, "CategoryFaceIDWebVideo", "category-web-video.svg"},
    Face{CategoryFaceIDPhone, "CategoryFaceIDPhone", "category-phone.svg"},
    Face{CategoryFaceIDTablet, "CategoryFaceIDTablet", "category-tablet.svg"},
    Face{CategoryFaceIDTelevision, "CategoryFaceIDTelevision", "category-television.svg"},
    Face{CategoryFaceIDConsole, "CategoryFaceIDConsole", "category-console.svg"},
    Face{CategoryFaceIDCamera, "CategoryFaceIDCamera", "category-camera.svg"},
    Face{CategoryFaceIDDisc, "CategoryFaceIDDisc", "category-disc.svg"},
    Face{IVXArtworkImageMgr::FormatFaceIDMP4, "FormatFaceIDMP4", "format-mp4.svg"},
    Face{IVXArtworkImageMgr::FormatFaceIDAVI, "FormatFaceIDAVI", "format-avi.svg"},
    Face{IVXArtworkImageMgr::FormatFaceIDWEBM, "FormatFaceIDWEBM", "format-webm.svg"},
    Face{IVXArtworkImageMgr::FormatFaceIDMKV, "FormatFaceIDMKV", "format-mkv.svg"},
    Face{FormatFaceIDMOV, "FormatFaceIDMOV", "format-mov.svg"},
    Face{FormatFaceIDMPG, "FormatFaceIDMPG", "format-mpg.svg"},
    Face{FormatFaceIDVideo, "FormatFaceIDVideo", "format-video.svg"},
    Face{IVXArtworkImageMgr::FormatFaceIDMP3, "FormatFaceIDMP3", "format-mp3.svg"},
    Face{IVXArtworkImageMgr::FormatFaceIDM4A, "FormatFaceIDM4A", "format-m4a.svg"},
    Face{IVXArtworkImageMgr::FormatFaceIDWAV, "FormatFaceIDWAV", "format-wav.svg"},
    Face{IVXArtworkImageMgr::FormatFaceIDWMA, "FormatFaceIDWMA", "format-wma.svg"},
    Face{FormatFaceIDFLAC, "FormatFaceIDFLAC", "format-flac.svg"},
    Face{FormatFaceIDOGG, "FormatFaceIDOGG", "format-ogg.svg"},
    Face{FormatFaceIDAudio, "FormatFaceIDAudio", "format-audio.svg"},
};

} // namespace Vexlor::Catalog
