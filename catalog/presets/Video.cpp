#include "catalog/presets/Preset.h"

#include <array>

namespace Vexlor::Catalog
{

namespace
{

// A container as it is: everything like the source, the codecs that its players expect.
constexpr std::array kContainers{
    Preset{"MP4", "The file that everything plays: H.264 and AAC, the size and rate of the source", kMP4,
           kH264, kAAC},
    Preset{"MOV", "For Apple's programs: H.264 and AAC", kMOV, kH264, kAAC},
    Preset{"MKV", "For media players and libraries, which take whatever is inside: HEVC and AAC", kMKV, kHEVC,
           kAAC},
    Preset{"WEBM", "For web pages, free of royalties: VP9 and Opus", kWEBM, kVP9, kOpus},
    Preset{"AVI", "For old players and programs of Windows: MPEG-4 and MP3", kAVI, kMPEG4, kMP3},
    Preset{"MPG", "For programs that author discs: MPEG-2 and MP2", kMPG, kMPEG2, kMP2},
    Preset{"M4V", "For the libraries of Apple's devices: H.264 and AAC", kM4V, kH264, kAAC},
    Preset{"TS", "For broadcast and streaming servers; a damaged file still plays: H.264 and AAC", kTS, kH264,
           kAAC},
    Preset{"M2TS", "For Blu-ray players and their authoring programs: H.264 and AC-3", kM2TS, kH264, kAC3},
    Preset{"VOB", "A title of a DVD on its own: MPEG-2 and AC-3", kVOB, kMPEG2, kAC3},
    Preset{"WMV", "For old versions of Windows and of its office programs: WMV 8 and WMA 2", kWMV, kWMV2,
           kWMA2},
    Preset{"ASF", "For streaming servers of old Windows: WMV 8 and WMA 2", kASF, kWMV2, kWMA2},
    Preset{"FLV", "For live streaming servers and players of the Flash era: H.264 and AAC", kFLV, kH264,
           kAAC},
    Preset{"F4V", "The MP4 of the Flash era, for what asks for that ending: H.264 and AAC", kF4V, kH264,
           kAAC},
    Preset{"3GP", "For mobile phones of before 2010: H.264 and AAC", k3GP, kH264, kAAC},
    Preset{"OGV", "For programs that take free formats alone: Theora and Vorbis", kOGV, kTheora, kVorbis},
    Preset{"MXF", "For broadcasters and editing suites: MPEG-2 and 16-bit sound", kMXF, kMPEG2, kPCM16},
    Preset{"DV", "The stream of a DV tape, as camcorders and old editing programs take it", kDVFile,
           kDV.Shape(IVXSampleAspectPreset::AspectPALDVD4x3), kPCM16},
};

constexpr std::array kInMP4{
    Preset{"MP4 HEVC", "Half the size of H.264, for devices made since about 2016", kMP4, kHEVC, kAAC},
    Preset{"MP4 HEVC 10-bit", "Smooth skies without bands, for televisions and phones that show ten bits",
           kMP4, kHEVC.Profile("Main 10").Format("YUV 4:2:0 10-bit"), kAAC},
    Preset{"MP4 AV1", "The smallest files, for devices and browsers made since about 2020; takes long", kMP4,
           kAV1, kOpus},
    Preset{"MP4 VP9", "For players that take MP4 and are free of royalties", kMP4, kVP9, kOpus},
    Preset{"MP4 MPEG-4", "For players of before H.264, about 2005", kMP4, kMPEG4, kAAC},
    Preset{"MP4 with AC-3", "For a television or receiver that has surround sound in AC-3 alone", kMP4, kH264,
           kAC3.Hertz(k48k)},
    Preset{"MP4 with E-AC-3", "Surround sound at half the bitrate of AC-3, for newer televisions", kMP4,
           kH264, kEAC3.Hertz(k48k)},
    Preset{"MP4 with Lossless Sound", "Concerts: pictures in H.264, sound without loss in ALAC", kMP4, kH264,
           kALAC},
};

// Members of the families by what they are made for: the makers' own words, apple.com/final-cut-pro/docs
// (ProRes white paper) and avid.com (bandwidths of the DNxHR codecs).
constexpr std::array kInMOV{
    Preset{"MOV HEVC", "For Apple's devices since 2017, at half the size of H.264", kMOV, kHEVC, kAAC},
    Preset{"MOV ProRes Proxy", "To cut on a laptop before the real pictures are put in", kMOV,
           kProRes.Profile("Proxy"), kPCM16.Hertz(k48k)},
    Preset{"MOV ProRes LT", "To cut on location, where room is short", kMOV, kProRes.Profile("LT"),
           kPCM16.Hertz(k48k)},
    Preset{"MOV ProRes 422", "To cut and hand on, the usual choice", kMOV, kProRes.Profile("Standard"),
           kPCM24.Hertz(k48k)},
    Preset{"MOV ProRes 422 HQ", "To grade, and to keep as the master", kMOV, kProRes.Profile("HQ"),
           kPCM24.Hertz(k48k)},
    Preset{"MOV ProRes 4444", "For effects and titles: full colour", kMOV,
           kProRes.Profile("4444").Format("YUV 4:4:4 10-bit"), kPCM24.Hertz(k48k)},
    Preset{"MOV DNxHR LB", "A proxy for Avid's and other editing suites", kMOV, kDNxHR.Profile("LB"),
           kPCM16.Hertz(k48k)},
    Preset{"MOV DNxHR SQ", "To cut in Avid's and other editing suites", kMOV, kDNxHR.Profile("SQ"),
           kPCM24.Hertz(k48k)},
    Preset{"MOV DNxHR HQX", "A master with ten bits for Avid's and other editing suites", kMOV,
           kDNxHR.Profile("HQX").Format("YUV 4:2:2 10-bit"), kPCM24.Hertz(k48k)},
    Preset{"MOV Motion JPEG", "For programs that take single pictures one after the other", kMOV, kMJPEG,
           kPCM16.Hertz(k48k)},
};

constexpr std::array kInMKV{
    Preset{"MKV H.264", "For media players on computers and televisions, sound with all channels", kMKV,
           kH264, kAAC},
    Preset{"MKV HEVC 10-bit", "For a library of films: small, and skies without bands", kMKV,
           kHEVC.Profile("Main 10").Format("YUV 4:2:0 10-bit"), kAAC},
    Preset{"MKV AV1", "For a library of films, smaller still; takes long", kMKV, kAV1, kOpus},
    Preset{"MKV VP9", "Free of royalties, for media players", kMKV, kVP9, kOpus},
    Preset{"MKV with DTS", "For a receiver that has surround sound in DTS", kMKV, kH264,
           kDTS.Hertz(k48k).Between(768, 1'536)}, // the two rates of discs, ETSI TS 102 114
    Preset{"MKV with FLAC", "Concerts: pictures in H.264, sound without loss", kMKV, kH264, kFLAC},
    Preset{"MKV MPEG-2", "For media players without power, and for recordings of broadcasts", kMKV,
           kMPEG2.Within(1920, 1080).UpTo(25'000), kAC3.Hertz(k48k)},
    Preset{"MKV Lossless", "To keep for good: FFV1 and FLAC, as archives do (RFC 9043)", kMKV, kFFV1, kFLAC},
};

constexpr std::array kInWEBM{
    Preset{"WEBM AV1", "For web pages: the smallest files, browsers since about 2020; takes long", kWEBM,
           kAV1, kOpus},
    Preset{"WEBM VP8", "For web pages that browsers of before 2013 open", kWEBM, kVP8, kVorbis},
    Preset{"WEBM VP9 10-bit", "For web pages with skies without bands", kWEBM,
           kVP9.Profile("Profile 2").Format("YUV 4:2:0 10-bit"), kOpus},
};

constexpr std::array kInAVI{
    Preset{"AVI DivX", "For programs that ask for DivX", kAVI, kDivX, kMP3},
    Preset{"AVI H.264", "For programs of Windows that have the codec and not the container", kAVI, kH264,
           kMP3},
    Preset{"AVI Motion JPEG", "For editing on old computers, and for picture frames", kAVI, kMJPEG, kPCM16},
    Preset{"AVI MPEG-4 V3", "For programs of the nineties", kAVI, kMSMPEG4, kMP3},
    Preset{"AVI Lossless", "To hand on without loss to programs that take AVI alone", kAVI, kFFV1, kPCM16},
};

// The rates of the family's members at these frame rates: avid.com, DNxHD codec bandwidth; SMPTE ST 2019-1.
// MPEG-2 4:2:2 at 50 Mb/s: SMPTE RDD 9, XDCAM HD422.
constexpr std::array kBroadcast{
    Preset{"Broadcast TS HEVC", "For servers of the second generation of digital television", kTS, kHEVC,
           kAC3.Hertz(k48k)},
    Preset{"Broadcast TS MPEG-2", "For servers of the first generation of digital television", kTS,
           kMPEG2.Within(1920, 1080).UpTo(15'000), kMP2.Stereo(k48k).Between(192, 384)},
    Preset{"Broadcast MXF MPEG-2 25p", "To hand in to a European broadcaster: 4:2:2 at 50 Mb/s, full HD",
           kMXF, kMPEG2.At(1920, 1080).Rate(25).Profile("4:2:2").Format("YUV 4:2:2").Exactly(50'000),
           kPCM24.Stereo(k48k)},
    Preset{"Broadcast MXF MPEG-2 29.97p", "To hand in to an American broadcaster: 4:2:2 at 50 Mb/s, full HD",
           kMXF,
           kMPEG2.At(1920, 1080).Rate(30'000, 1'001).Profile("4:2:2").Format("YUV 4:2:2").Exactly(50'000),
           kPCM24.Stereo(k48k)},
    Preset{"Broadcast MXF DNxHD 25p", "For European editing suites: 8-bit 4:2:2, full HD", kMXF,
           kDNxHD.At(1920, 1080).Rate(25).Format("YUV 4:2:2"), kPCM24.Stereo(k48k)},
    Preset{"Broadcast MXF DNxHD 29.97p", "For American editing suites: 8-bit 4:2:2, full HD", kMXF,
           kDNxHD.At(1920, 1080).Rate(30'000, 1'001).Format("YUV 4:2:2"), kPCM24.Stereo(k48k)},
};

// Sizes and rates: our choice; every size beyond these makes files that no page can carry.
constexpr std::array kAnimations{
    Preset{"GIF", "A short loop that everything shows, 256 colours; keep it to seconds", kGIFFile,
           kGIF.Within(480, 270).Rate(10).UpTo(9'216)},
    Preset{"Small GIF", "A short loop for messages and forums", kGIFFile,
           kGIF.Within(320, 180).Rate(10).UpTo(4'096)},
    Preset{"WEBP", "A short loop for web pages, all colours, a third of the size of a GIF", kWEBPFile,
           kWebP.Within(640, 360).Rate(20).UpTo(8'000)},
};

constexpr std::array kGroups{
    Group{"Video", "", "Every container of pictures and sound, with the size and rate of the source",
          Icons::CategoryFaceIDVideo, Offer::Everything, kContainers},
    Group{"Video", "More MP4", "Other codecs in MP4", Icons::FormatFaceIDMP4, Offer::Chosen, kInMP4},
    Group{"Video", "More MOV", "For editing, in Apple's container", FormatFaceIDMOV, Offer::Chosen, kInMOV},
    Group{"Video", "More MKV", "For media players and libraries", Icons::FormatFaceIDMKV, Offer::Chosen,
          kInMKV},
    Group{"Video", "More WEBM", "For web pages, free of royalties", Icons::FormatFaceIDWEBM, Offer::Chosen,
          kInWEBM},
    Group{"Video", "More AVI", "For old programs of Windows", Icons::FormatFaceIDAVI, Offer::Chosen, kInAVI},
    Group{"Video", "Broadcast", "For television stations and their editing suites", FormatFaceIDVideo,
          Offer::Chosen, kBroadcast},
    Group{"Video", "Animations", "Short loops without sound", FormatFaceIDVideo, Offer::Chosen, kAnimations},
};

} // namespace

std::span<const Group> VideoGroups() { return kGroups; }

} // namespace Vexlor::Catalog
