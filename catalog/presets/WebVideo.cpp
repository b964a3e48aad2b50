#include "catalog/presets/Preset.h"

#include <array>

namespace Vexlor::Catalog
{

namespace
{

// support.google.com/youtube/answer/1722171: the column of 48 to 60 frames a second, of which two thirds are
// the column of 24 to 30; AAC-LC at 48 kHz, 384 kb/s stereo.
constexpr Sound kUploadSound = kAAC.Stereo(k48k).Between(192, 384);

constexpr std::array kUpload{
    Preset{"Upload 480p", "Video sites, from a slow line", kMP4, kH264.Within(854, 480).UpTo(4'000),
           kUploadSound},
    Preset{"Upload 720p", "Video sites, from a usual line", kMP4, kH264.Within(1280, 720).UpTo(7'500),
           kUploadSound},
    Preset{"Upload 1080p", "Video sites, the usual choice", kMP4, kH264.Within(1920, 1080).UpTo(12'000),
           kUploadSound},
    Preset{"Upload 1440p", "Video sites, which give 1440p and up a better codec", kMP4,
           kH264.Within(2560, 1440).UpTo(24'000), kUploadSound},
    Preset{"Upload 2160p", "Video sites, for 4K screens", kMP4, kH264.Within(3840, 2160).UpTo(68'000),
           kUploadSound},
    Preset{"Upload 2160p HEVC", "The same from a slower line", kMP4, kHEVC.Within(3840, 2160).UpTo(40'000),
           kUploadSound}, // our choice: HEVC needs .6 of it
    // vimeo.com/help/compression: 10 to 20 Mb/s at 1080p, 30 to 60 at 2160p; AAC-LC at 320 kb/s, 48 kHz.
    Preset{"Film Site 1080p", "Sites for film makers: full HD at a high bitrate", kMP4,
           kH264.At(1920, 1080).Profile("High").Between(10'000, 20'000), kAAC.Stereo(k48k).Exactly(320)},
    Preset{"Film Site 2160p", "Sites for film makers: 4K at a high bitrate", kMP4,
           kH264.At(3840, 2160).Profile("High").Between(30'000, 60'000), kAAC.Stereo(k48k).Exactly(320)},
};

// Reels and stories: developers.facebook.com/docs/instagram-platform, media of a user: H.264, 23 to 60
// frames, 1,920 columns and 25 Mb/s at most, AAC at 48 kHz and 128 kb/s. Landscape, portrait and square of
// short posts: docs.x.com, media best practices: 1280 x 720, 720 x 1280, 720 x 720, from 5 Mb/s and 128 kb/s
// up.
constexpr Picture kReel = kH264.Profile("High").Between(3'500, 12'000);
constexpr Picture kPost = kH264.Profile("High").Between(5'000, 8'000);
constexpr Sound kSocialSound = kAAC.Stereo(k48k).Exactly(128);

constexpr std::array kSocial{
    Preset{"Vertical 1080p", "Reels, shorts and stories, for a phone held upright", kMP4,
           kReel.At(1080, 1920), kSocialSound},
    Preset{"Vertical 720p", "The same in half the room", kMP4, kPost.At(720, 1280), kSocialSound},
    Preset{"Square 1080", "Posts in a feed", kMP4, kReel.At(1080, 1080), kSocialSound},
    Preset{"Square 720", "Short posts in a feed", kMP4, kPost.At(720, 720), kSocialSound},
    Preset{"Portrait 4:5", "Posts that fill more of a phone's feed", kMP4, kReel.At(1080, 1350),
           kSocialSound},
    Preset{"Landscape 1080p", "Posts that are watched with the phone on its side", kMP4, kReel.At(1920, 1080),
           kSocialSound},
    Preset{"Landscape 720p", "Short posts with the picture as it was filmed", kMP4, kPost.At(1280, 720),
           kSocialSound},
};

// The bitrates are the size over the length, less 7 % for the container and what encoders miss by. Sizes: 16
// MB, developers.facebook.com/docs/whatsapp, supported media types; 10 MB, Discord's FAQ of file attachments;
// 25 MB of mail, support.google.com/mail/answer/6584, of which the encoding of attachments leaves 18; 300 kB,
// Open Mobile Alliance, MMS conformance 1.2, class video rich.
constexpr std::array kMessaging{
    Preset{"16 MB, 1 Minute", "A clip of a minute for a messenger that takes 16 MB", kMP4,
           kH264.Within(1280, 720).Exactly(1'850), kAAC.Stereo(k48k).Exactly(128)},
    Preset{"16 MB, 3 Minutes", "A clip of three minutes for a messenger that takes 16 MB", kMP4,
           kH264.Within(854, 480).Exactly(590), kAAC.Stereo(k44k).Exactly(64)},
    Preset{"16 MB, 10 Minutes", "A clip of ten minutes for a messenger that takes 16 MB; small and blurred",
           kMP4, kH264.Within(480, 270).Exactly(160), kAAC.Mono(k44k).Exactly(32)},
    Preset{"10 MB, 1 Minute", "A clip of a minute for a chat that takes 10 MB", kMP4,
           kH264.Within(1280, 720).Exactly(1'120), kAAC.Stereo(k48k).Exactly(96)},
    Preset{"10 MB, 3 Minutes", "A clip of three minutes for a chat that takes 10 MB", kMP4,
           kH264.Within(640, 360).Exactly(345), kAAC.Stereo(k44k).Exactly(64)},
    Preset{"Mail 25 MB, 5 Minutes", "A clip of five minutes as an attachment", kMP4,
           kH264.Within(640, 360).Exactly(380), kAAC.Stereo(k44k).Exactly(64)},
    Preset{"MMS 300 kB, 30 Seconds", "A clip of half a minute between phones without the net", k3GP,
           kH263.At(176, 144).Rate(15).Exactly(54), kAAC.Mono(16'000).Exactly(16)},
    Preset{"Voice Message", "Speech for messengers: under 200 kB a minute", kOGG, kNoPicture,
           kOpus.Mono(k48k).Exactly(24)},
};

// developer.apple.com, HLS authoring for Apple devices: the rungs of 16:9 and their average
// rates.
constexpr Sound kLowRung = kAAC.Stereo(k48k).Exactly(64);
constexpr Sound kRung = kAAC.Stereo(k48k).Exactly(128);

constexpr std::array kLadder{
    Preset{"Ladder 234p", "The rung for the slowest lines, 30 frames at most", kTS,
           kH264.At(416, 234).Exactly(145), kLowRung},
    Preset{"Ladder 360p", "The rung for mobile lines, 30 frames at most", kTS,
           kH264.At(640, 360).Exactly(365), kLowRung},
    Preset{"Ladder 432p 730", "The rung for mobile lines, 30 frames at most", kTS,
           kH264.At(768, 432).Exactly(730), kLowRung},
    Preset{"Ladder 432p 1100", "The rung to start with, 30 frames at most", kTS,
           kH264.At(768, 432).Exactly(1'100), kRung},
    Preset{"Ladder 540p", "The rung between mobile and home", kTS, kH264.At(960, 540).Exactly(2'000), kRung},
    Preset{"Ladder 720p 3000", "The rung for usual lines", kTS, kH264.At(1280, 720).Exactly(3'000), kRung},
    Preset{"Ladder 720p 4500", "The rung for usual lines, better", kTS, kH264.At(1280, 720).Exactly(4'500),
           kRung},
    Preset{"Ladder 1080p 6000", "The rung for fast lines", kTS, kH264.At(1920, 1080).Exactly(6'000), kRung},
    Preset{"Ladder 1080p 7800", "The highest rung in H.264", kTS, kH264.At(1920, 1080).Exactly(7'800), kRung},
    Preset{"Ladder HEVC 540p", "HEVC: the rung for mobile lines", kMP4, kHEVC.At(960, 540).Exactly(900),
           kRung},
    Preset{"Ladder HEVC 720p", "HEVC: the rung for usual lines", kMP4, kHEVC.At(1280, 720).Exactly(2'400),
           kRung},
    Preset{"Ladder HEVC 1080p", "HEVC: the rung for fast lines", kMP4, kHEVC.At(1920, 1080).Exactly(4'500),
           kRung},
    Preset{"Ladder HEVC 1440p", "HEVC: the rung between full HD and 4K", kMP4,
           kHEVC.At(2560, 1440).Exactly(8'100), kRung},
    Preset{"Ladder HEVC 2160p", "HEVC: the rung for 4K screens", kMP4, kHEVC.At(3840, 2160).Exactly(16'800),
           kRung},
};

// developers.google.com/media/vp9/settings/vod: at most 150 % of the target at 60 frames a second. The
// others: our choice, H.264 from there by Jellyfin's codec factors, AV1 .83 of VP9.
constexpr Sound kPageSound = kOpus.Stereo(k48k).Between(64, 128);

constexpr std::array kPages{
    Preset{"Web Page 480p", "A clip in the text of a page", kWEBM, kVP9.Within(854, 480).UpTo(1'125),
           kPageSound},
    Preset{"Web Page 720p", "The usual size on a page", kWEBM, kVP9.Within(1280, 720).UpTo(2'700),
           kPageSound},
    Preset{"Web Page 1080p", "A page that is about the video", kWEBM, kVP9.Within(1920, 1080).UpTo(4'500),
           kPageSound},
    Preset{"Web Page 2160p", "A page for large screens", kWEBM, kVP9.Within(3840, 2160).UpTo(27'000),
           kPageSound},
    Preset{"Web Page AV1", "The smallest files for browsers since about 2020", kWEBM,
           kAV1.Within(1920, 1080).UpTo(3'700), kPageSound},
    Preset{"Web Page MP4", "The second file of a page, for browsers that take neither VP9 nor AV1", kMP4,
           kH264.Within(1280, 720).Profile("High").UpTo(4'500), kAAC.Stereo(k48k).Between(64, 128)},
    Preset{"Page Background", "A loop behind a page's title, without sound", kMP4,
           kH264.Within(1280, 720).Profile("High").UpTo(1'500)},
};

constexpr std::array kGroups{
    Group{"Web Video", "", "For upload, for messages and for web pages", Icons::CategoryFaceIDWebVideo,
          Offer::Chosen},
    Group{"Web Video", "Upload", "Video sites, which make their own files of what they get",
          Icons::CategoryFaceIDWebVideo, Offer::Chosen, kUpload},
    Group{"Web Video", "Social", "Posts, reels and stories", Icons::CategoryFaceIDWebVideo, Offer::Chosen,
          kSocial},
    Group{"Web Video", "Messaging", "Within a size, by the length of the clip", Icons::CategoryFaceIDWebVideo,
          Offer::Chosen, kMessaging},
    Group{"Web Video", "Streaming", "The rungs of a ladder, one file each, for a packager",
          Icons::CategoryFaceIDWebVideo, Offer::Chosen, kLadder},
    Group{"Web Video", "Web Pages", "For pages of your own", Icons::CategoryFaceIDWebVideo, Offer::Chosen,
          kPages},
};

} // namespace

std::span<const Group> WebVideoGroups() { return kGroups; }

} // namespace Vexlor::Catalog
