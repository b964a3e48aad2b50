#include "catalog/presets/Preset.h"

#include <array>

namespace Vexlor::Catalog
{

namespace
{

using Aspect = IVXSampleAspectPreset;

// A level is fixed only beside a frame rate, for a fast source would break it; elsewhere the encoder states
// the lowest that holds the stream. "Our choice" is a bound that no maker published, as is every bitrate
// whose source below tells of codecs, levels and sizes alone.

constexpr Sound kAppleSound =
    kAAC.Stereo(k48k).Between(96, 160); // every Apple page below: AAC-LC, 160 kb/s, 48 kHz

constexpr std::array kPhones{
    Preset{"Phone 720p", "Any smartphone, in little room", kMP4, kH264.Within(1280, 720).UpTo(7'500),
           kAAC.Stereo(k48k).Between(96, 192)}, // our choice
    Preset{"Phone 1080p", "Any smartphone made since about 2013", kMP4, kH264.Within(1920, 1080).UpTo(12'000),
           kAAC.Stereo(k48k).Between(96, 192)}, // our choice
    Preset{"Phone Upright", "Clips to watch with the phone held upright", kMP4,
           kH264.Within(1080, 1920).UpTo(12'000), kAAC.Stereo(k48k).Between(96, 192)}, // our choice
    Preset{"Phone HEVC", "Smartphones made since about 2017: twice as much on the card", kMP4,
           kHEVC.Within(1920, 1080).UpTo(6'000), kAAC.Stereo(k48k).Between(96, 192)}, // our choice
    // support.apple.com/kb/SP705: H.264 High to level 4.2, 1080p at 60 frames.
    Preset{"iPhone 1080p", "iPhone 6 and newer", kMP4, kH264.Within(1920, 1080).Profile("High").UpTo(20'000),
           kAppleSound},
    // support.apple.com/HT207022: HEVC since iPhone 7; 40 Mb/s is level 5.1, main tier (H.265 table A.9).
    Preset{"iPhone 4K", "iPhone 8 and newer", kMP4, kHEVC.Within(3840, 2160).UpTo(40'000), kAppleSound},
    // support.apple.com/kb/SP587: H.264 Main at level 3.1, 720p at 30 frames; 10 Mb/s of
    // the level's 14: our choice.
    Preset{"iPhone 4", "iPhone 4 and 4S, and iPod touch of those years", kM4V,
           kH264.Within(1280, 720).Rate(30'000, 1'001).Profile("Main", "3.1").UpTo(10'000), kAppleSound},
    // support.apple.com/kb/SP572: H.264 Baseline to level 3.0, 2.5 Mb/s, 640 x 480 at 30 frames.
    Preset{"iPod Classic", "The last iPods with a wheel", kM4V,
           kH264.Within(640, 480).Rate(30'000, 1'001).Profile("Baseline", "3").UpTo(2'500), kAppleSound},
    // support.apple.com/kb/SP41: H.264 Baseline at level 1.3, 768 kb/s, 320 x 240 at 30 frames.
    Preset{"iPod 5th Generation", "The first iPods that show video", kM4V,
           kH264.Within(320, 240).Rate(30'000, 1'001).Profile("Baseline", "1.3").UpTo(768),
           kAAC.Stereo(k44k).Between(96, 128)},
    // developer.android.com/media/platform/supported-formats, encoding recommendations: the three columns.
    Preset{"Android HD", "What Google asks every Android phone to play: 720p at 2 Mb/s", kMP4,
           kH264.Within(1280, 720).Rate(30).Profile("Baseline", "3.1").UpTo(2'000),
           kAAC.Stereo(k48k).Between(128, 192)},
    Preset{"Android SD", "Android phones of the first years: 360p at 500 kb/s", kMP4,
           kH264.Within(480, 360).Rate(30).Profile("Baseline", "3").UpTo(500),
           kAAC.Stereo(k44k).Between(96, 128)},
    Preset{"Android Low", "The smallest that Android phones are asked to play", k3GP,
           kH264.Within(176, 144).Rate(12).Profile("Baseline", "1").UpTo(56), kAAC.Mono(16'000).Exactly(24)},
    // 3GPP TS 26.140 4.8.3: H.263 profile 0 at level 10, which is 176 x 144 at 15 frames and 64 kb/s.
    Preset{"Phone with Keys", "Mobile phones of before 2007", k3GP, kH263.At(176, 144).Rate(15).Exactly(60),
           kAAC.Mono(16'000).Exactly(24)},
};

constexpr std::array kTablets{
    Preset{"Tablet 1080p", "Any tablet made since about 2013", kMP4, kH264.Within(1920, 1080).UpTo(12'000),
           kAAC.Stereo(k48k).Between(128, 256)}, // our choice
    Preset{"Tablet HEVC", "Tablets made since about 2017: half the size", kMP4,
           kHEVC.Within(2560, 1600).UpTo(12'000), kAAC.Stereo(k48k).Between(128, 256)}, // our choice
    // support.apple.com/kb/SP647: H.264 High to level 4.1, 1080p at 30 frames.
    Preset{"iPad 1080p", "iPad of 2012 and newer", kMP4,
           kH264.Within(1920, 1080).Rate(30'000, 1'001).Profile("High", "4.1").UpTo(20'000), kAppleSound},
    // support.apple.com/HT207022, as iPhone 4K.
    Preset{"iPad 4K", "iPad Pro of 2017 and newer", kMP4, kHEVC.Within(3840, 2160).UpTo(40'000), kAppleSound},
    // support.apple.com/kb/SP580: H.264 Main at level 3.1, 720p at 30 frames.
    Preset{"iPad of 2010", "The first two iPads", kM4V,
           kH264.Within(1280, 720).Rate(30'000, 1'001).Profile("Main", "3.1").UpTo(10'000), kAppleSound},
};

constexpr std::array kTelevisions{
    // 40 Mb/s: HEVC level 5.1, main tier (H.265 table A.9).
    Preset{"4K Television", "Televisions of 2016 and newer, from a USB stick", kMP4,
           kHEVC.Within(3840, 2160).UpTo(40'000), kAAC.Stereo(k48k).Between(192, 384)},
    Preset{"4K Television HDR", "The same in ten bits, for televisions that show them", kMP4,
           kHEVC.Within(3840, 2160).Profile("Main 10").Format("YUV 4:2:0 10-bit").UpTo(40'000),
           kAAC.Stereo(k48k).Between(192, 384)},
    // 20 Mb/s: H.264 level 4 (table A-1).
    Preset{"Full HD Television", "Any flat television with a USB socket", kMP4,
           kH264.Within(1920, 1080).UpTo(20'000), kAAC.Stereo(k48k).Between(192, 384)},
    Preset{"Television with Surround", "A television with a receiver behind it: 5.1 in AC-3", kMKV,
           kH264.Within(1920, 1080).UpTo(20'000),
           kAC3.Hertz(k48k).Between(448, 640)}, // A/52: 640 kb/s at most
    Preset{"Old Television USB", "Televisions of before 2010, whose socket reads MPEG-2 alone", kMPG,
           kMPEG2.Within(720, 576).UpTo(8'000), kMP2.Stereo(k48k).Between(192, 384)}, // our choice
    // developers.google.com/cast/docs/media: codecs and levels of each generation. Bitrates: our choice.
    Preset{"Chromecast", "Chromecast of the first and second generation", kMP4,
           kH264.Within(1920, 1080).Rate(30'000, 1'001).Profile("High", "4.1").UpTo(11'000),
           kAAC.Stereo(k48k).Between(128, 256)},
    Preset{"Chromecast 3", "Chromecast of the third generation", kMP4,
           kH264.Within(1920, 1080).Profile("High").UpTo(15'000), kAAC.Stereo(k48k).Between(128, 256)},
    Preset{"Chromecast 4K", "Chromecast Ultra, and Chromecast with Google TV", kMP4,
           kHEVC.Within(3840, 2160).UpTo(40'000), kAAC.Stereo(k48k).Between(128, 256)},
    Preset{"Google TV Streamer", "AV1, the smallest files, for Google TV Streamer and newer sticks", kMP4,
           kAV1.Within(3840, 2160).UpTo(30'000), kAAC.Stereo(k48k).Between(128, 256)},
    // support.apple.com/kb/SP598, SP648, SP724 and SP769, in this order.
    Preset{"Apple TV 2", "Apple TV of 2010", kM4V,
           kH264.Within(1280, 720).Rate(30'000, 1'001).Profile("Main", "3.1").UpTo(10'000), kAppleSound},
    Preset{"Apple TV 3", "Apple TV of 2012", kM4V,
           kH264.Within(1920, 1080).Rate(30'000, 1'001).Profile("High", "4").UpTo(20'000), kAppleSound},
    Preset{"Apple TV HD", "Apple TV of 2015", kMP4, kH264.Within(1920, 1080).Profile("High").UpTo(25'000),
           kAppleSound},
    Preset{"Apple TV 4K", "Apple TV of 2017 and newer", kMP4, kHEVC.Within(3840, 2160).UpTo(40'000),
           kAppleSound},
    // developer.roku.com, what streams may be: codecs, sizes. Bitrates: our choice.
    Preset{"Roku HD", "Roku players and sticks for full HD", kMP4,
           kH264.Within(1920, 1080).Profile("High").UpTo(10'000), kAAC.Stereo(k48k).Between(128, 256)},
    Preset{"Roku 4K", "Roku players, sticks and televisions for 4K", kMP4,
           kHEVC.Within(3840, 2160).UpTo(30'000), kAAC.Stereo(k48k).Between(128, 256)},
    // developer.amazon.com, Fire TV devices: codecs, sizes. Bitrates: our choice.
    Preset{"Fire TV HD", "Fire TV sticks for full HD", kMP4,
           kH264.Within(1920, 1080).Profile("High").UpTo(15'000), kAAC.Stereo(k48k).Between(128, 256)},
    Preset{"Fire TV 4K", "Fire TV sticks, boxes and televisions for 4K", kMP4,
           kHEVC.Within(3840, 2160).UpTo(35'000), kAAC.Stereo(k48k).Between(128, 256)},
};

constexpr std::array kConsoles{
    // manuals.playstation.net, PSP: H.264 Main and Baseline at level 3, 480 x 272 and 720 x 480. Bitrate: our
    // choice.
    Preset{"PlayStation Portable", "PSP, at the size of its screen", kMP4,
           kH264.Within(480, 272).Rate(30'000, 1'001).Profile("Main", "3").UpTo(1'500),
           kAAC.Stereo(k48k).Between(96, 128)},
    // manuals.playstation.net: PS3, H.264 High in MP4 with AAC; PS4, to level 4.2, and on a PS4 Pro 5.2.
    Preset{"PlayStation 3", "PlayStation 3, from a stick or the network", kMP4,
           kH264.Within(1920, 1080).Rate(30'000, 1'001).Profile("High", "4.1").UpTo(20'000),
           kAAC.Stereo(k48k).Between(128, 256)},
    Preset{"PlayStation 4", "PlayStation 4, from a stick or the network", kMP4,
           kH264.Within(1920, 1080).Profile("High").UpTo(30'000), kAAC.Stereo(k48k).Between(128, 256)},
    Preset{"PlayStation 4K", "PlayStation 4 Pro and PlayStation 5, in 4K", kMP4,
           kH264.Within(3840, 2160).Profile("High").UpTo(60'000), kAAC.Stereo(k48k).Between(128, 256)},
    // Microsoft's playback FAQ for Xbox 360: H.264 to High at level 4.1, 10 Mb/s, 1080p at 30 frames, stereo
    // AAC;
    // MPEG-4 Part 2 in AVI to 5 Mb/s, 720p at 30 frames, MP3.
    Preset{"Xbox 360", "Xbox 360, from a stick or the network", kMP4,
           kH264.Within(1920, 1080).Rate(30'000, 1'001).Profile("High", "4.1").UpTo(10'000),
           kAAC.Stereo(k48k).Between(128, 192)},
    Preset{"Xbox 360 AVI", "Xbox 360, for collections in AVI", kAVI,
           kMPEG4.Within(1280, 720).Rate(30'000, 1'001).UpTo(5'000), kMP3.Stereo(k48k).Between(96, 192)},
    Preset{"Xbox One", "Xbox One and newer", kMP4, kH264.Within(1920, 1080).Profile("High").UpTo(20'000),
           kAAC.Stereo(k48k).Between(128, 256)}, // our choice
    Preset{"Xbox 4K", "Xbox One S, One X and Series, in 4K", kMP4, kHEVC.Within(3840, 2160).UpTo(40'000),
           kAAC.Stereo(k48k).Between(128, 256)}, // our choice
    // Nintendo's page of the Photo Channel: Motion JPEG in AVI, 848 x 480 at most.
    Preset{"Wii", "The Photo Channel, from a card", kAVI, kMJPEG.Within(848, 480).UpTo(24'000),
           kPCM16.Stereo(32'000)},
};

constexpr std::array kCameras{
    // avchd-info.org, the format: H.264 High, 24 Mb/s in all, AC-3 64 to 640 kb/s at 48 kHz.
    Preset{"AVCHD 1080p", "To put back on an AVCHD camcorder or disc: full HD, 23.976 frames", kM2TS,
           kH264.At(1920, 1080).Rate(24'000, 1'001).Profile("High", "4.1").Between(9'000, 22'000),
           kAC3.Stereo(k48k).Between(192, 384)},
    Preset{"AVCHD 720p 50", "The same for Europe: 720p, 50 frames", kM2TS,
           kH264.At(1280, 720).Rate(50).Profile("High", "4.1").Between(9'000, 22'000),
           kAC3.Stereo(k48k).Between(192, 384)},
    Preset{"AVCHD 720p 59.94", "The same for America: 720p, 59.94 frames", kM2TS,
           kH264.At(1280, 720).Rate(60'000, 1'001).Profile("High", "4.1").Between(9'000, 22'000),
           kAC3.Stereo(k48k).Between(192, 384)},
    // hdv-info.org: MPEG-2 Main at High 1440, 1440 x 1080 in 25 Mb/s, MP2 at 384 kb/s.
    Preset{"HDV 1080p", "To put back on an HDV camcorder: 25 frames", kTS,
           kMPEG2.At(1440, 1080)
               .Rate(25)
               .Profile("Main", "High 1440")
               .Shape(Aspect::AspectPALHD1080i16x9)
               .Exactly(25'000),
           kMP2.Stereo(k48k).Exactly(384)},
    // IEC 61834: one size, one rate, 25 Mb/s.
    Preset{"DV Camcorder PAL", "To put back on a DV tape of Europe", kAVI, kDV.Shape(Aspect::AspectPALDVD4x3),
           kPCM16.Stereo(k48k)},
    Preset{"DV Camcorder NTSC", "To put back on a DV tape of America or Japan", kAVI,
           kDVNTSC.Shape(Aspect::AspectNTSCDVD4x3), kPCM16.Stereo(k48k)},
    Preset{"Digital Camera", "For the screens of old digital cameras", kAVI,
           kMJPEG.Within(640, 480).Rate(30).UpTo(14'000),
           kPCM16.Mono(16'000)}, // our choice, after what such cameras record
    Preset{"Picture Frame", "For picture frames with a card", kAVI,
           kMJPEG.Within(800, 480).Rate(25).UpTo(16'000), kPCM16.Stereo(k44k)}, // our choice
};

// DVD-Video: MPEG-2 Main at Main level to 9.8 Mb/s of 10.08 in all, AC-3 to 448 kb/s (dvddemystified.com, DVD
// FAQ 3.4 and 3.6). Video CD: 1,150 and 224 kb/s (White Book 2.0). Super Video CD: to 2.6 Mb/s in all (IEC
// 62107). Blu-ray: H.264 High at level 4.1 to 40 Mb/s, AC-3 to 640 kb/s (blu-raydisc.com, BD-ROM white
// paper 2.B).
constexpr Picture kDVDPAL = kMPEG2.At(720, 576).Rate(25).Profile("Main", "Main").Between(3'000, 8'500);
constexpr Picture kDVDNTSC =
    kMPEG2.At(720, 480).Rate(30'000, 1'001).Profile("Main", "Main").Between(3'000, 8'500);
constexpr Sound kDVDSound = kAC3.Hertz(k48k).Between(256, 448);

constexpr std::array kPlayers{
    Preset{"DVD PAL 16:9", "To author a DVD for Europe, wide pictures", kVOB,
           kDVDPAL.Shape(Aspect::AspectPALDVD16x9), kDVDSound},
    Preset{"DVD PAL 4:3", "To author a DVD for Europe, narrow pictures", kVOB,
           kDVDPAL.Shape(Aspect::AspectPALDVD4x3), kDVDSound},
    Preset{"DVD NTSC 16:9", "To author a DVD for America or Japan, wide pictures", kVOB,
           kDVDNTSC.Shape(Aspect::AspectNTSCDVD16x9), kDVDSound},
    Preset{"DVD NTSC 4:3", "To author a DVD for America or Japan, narrow pictures", kVOB,
           kDVDNTSC.Shape(Aspect::AspectNTSCDVD4x3), kDVDSound},
    Preset{"Video CD PAL", "74 minutes on a CD, for players of Europe", kMPG,
           kMPEG1.At(352, 288).Rate(25).Shape(Aspect::AspectPALDVD4x3).Exactly(1'150),
           kMP2.Stereo(k44k).Exactly(224)},
    Preset{"Video CD NTSC", "74 minutes on a CD, for players of America or Japan", kMPG,
           kMPEG1.At(352, 240).Rate(30'000, 1'001).Shape(Aspect::AspectNTSCDVD4x3).Exactly(1'150),
           kMP2.Stereo(k44k).Exactly(224)},
    Preset{"Super Video CD PAL", "35 minutes on a CD, better pictures, for players of Europe", kMPG,
           kMPEG2.At(480, 576).Rate(25).Profile("Main", "Main").Samples(8, 5).Exactly(2'300),
           kMP2.Stereo(k44k).Exactly(224)},
    Preset{"Super Video CD NTSC", "35 minutes on a CD, better pictures, for players of America or Japan",
           kMPG, kMPEG2.At(480, 480).Rate(30'000, 1'001).Profile("Main", "Main").Samples(4, 3).Exactly(2'300),
           kMP2.Stereo(k44k).Exactly(224)},
    Preset{"Blu-ray 1080p", "To author a Blu-ray disc: full HD, 23.976 frames", kM2TS,
           kH264.At(1920, 1080).Rate(24'000, 1'001).Profile("High", "4.1").Between(12'000, 35'000),
           kAC3.Hertz(k48k).Between(448, 640)},
    Preset{"Blu-ray 720p 50", "To author a Blu-ray disc for Europe: 720p, 50 frames", kM2TS,
           kH264.At(1280, 720).Rate(50).Profile("High", "4.1").Between(8'000, 30'000),
           kAC3.Hertz(k48k).Between(448, 640)},
    Preset{"Blu-ray 720p 59.94", "To author a Blu-ray disc for America or Japan: 720p, 59.94 frames", kM2TS,
           kH264.At(1280, 720).Rate(60'000, 1'001).Profile("High", "4.1").Between(8'000, 30'000),
           kAC3.Hertz(k48k).Between(448, 640)},
    // The Home Theater profile of DivX: 720 x 576 at 25 frames, 4 Mb/s on average.
    Preset{"DivX Player", "DVD players with the DivX sign, from a disc or stick", kAVI,
           kDivX.Within(720, 576).UpTo(4'000), kMP3.Stereo(k48k).Between(96, 192)},
    Preset{"Car Player AVI", "Car radios with a screen and a USB socket", kAVI,
           kMPEG4.Within(720, 480).Rate(25).UpTo(2'000), kMP3.Stereo(k44k).Between(96, 192)}, // our choice
    Preset{"Car Screen", "Car systems of about 2012 and newer", kMP4,
           kH264.Within(800, 480).Rate(30).Profile("Baseline", "3.1").UpTo(3'000),
           kAAC.Stereo(k48k).Between(96, 160)}, // our choice
    Preset{"Car Music", "Car radios with a USB socket or an MP3 disc", kMP3File, kNoPicture,
           kMP3.Stereo(k44k).Exactly(192)}, // our choice: every radio keeps up with it
};

constexpr std::array kGroups{
    Group{"Devices", "", "Within what players of a kind can show", Icons::CategoryFaceIDDevice,
          Offer::Chosen},
    Group{"Devices", "Phones", "Smartphones, pocket players, and phones of old", CategoryFaceIDPhone,
          Offer::Chosen, kPhones},
    Group{"Devices", "Tablets", "Tablets of all makers", CategoryFaceIDTablet, Offer::Chosen, kTablets},
    Group{"Devices", "TVs and Sticks", "Televisions, and what is plugged into them", CategoryFaceIDTelevision,
          Offer::Chosen, kTelevisions},
    Group{"Devices", "Consoles", "Game consoles", CategoryFaceIDConsole, Offer::Chosen, kConsoles},
    Group{"Devices", "Cameras", "Back onto camcorders, cameras and picture frames", CategoryFaceIDCamera,
          Offer::Chosen, kCameras},
    Group{"Devices", "Car and Disc Players", "DVD, Video CD, Blu-ray, and cars", CategoryFaceIDDisc,
          Offer::Chosen, kPlayers},
};

} // namespace

std::span<const Group> DeviceGroups() { return kGroups; }

} // namespace Vexlor::Catalog
