#include "catalog/presets/Preset.h"

#include <array>

namespace Vexlor::Catalog
{

namespace
{

// H.264: support.google.com/youtube/answer/1722171, the upper end at up to 60 frames a second, which is also
// what High at level 4.2 holds. HEVC at 2160p: level 5.1, main tier (H.265 table A.9). AAC: 80 kb/s a channel
// and up is transparent to most (HandBrake's defaults). What else is bounded is our choice.
constexpr std::array kPresets{
    Preset{"Just Works",
           "When in doubt: the picture as it is, in what computers, phones, televisions and the web all play",
           kMP4, kH264, kAAC.Stereo(k48k).Between(128, 256)},
    Preset{"Small Video 480p", "For messages, old computers and slow lines: a few megabytes a minute", kMP4,
           kH264.Within(854, 480).UpTo(2'500), kAAC.Stereo(k44k).Between(96, 128)},
    Preset{"HD Video 720p", "For small screens, and where full HD takes too much room", kMP4,
           kH264.Within(1280, 720).UpTo(7'500), kAAC.Stereo(k48k).Between(128, 192)},
    Preset{"Full HD Video 1080p", "For television screens; the sound keeps its channels", kMP4,
           kH264.Within(1920, 1080).UpTo(12'000), kAAC.Hertz(k48k)},
    Preset{"Upright Video 1080p", "Full HD for clips of a phone that was held upright", kMP4,
           kH264.Within(1080, 1920).UpTo(12'000), kAAC.Stereo(k48k).Between(128, 256)},
    Preset{"4K Video 2160p", "For large screens that know HEVC, which are those made since about 2016", kMP4,
           kHEVC.Within(3840, 2160).UpTo(40'000), kAAC.Hertz(k48k)},
    Preset{"Half the Size 1080p",
           "Looks like full HD in H.264 and takes half the room; older players refuse it", kMP4,
           kHEVC.Within(1920, 1080).UpTo(6'000), kAAC.Stereo(k48k).Between(96, 160)},
    Preset{"For Editing", "To cut and grade: every frame stands alone, files are huge", kMOV,
           kProRes.Profile("Standard"), kPCM24.Hertz(k48k)},
    Preset{"Archive without Loss", "To keep for good: nothing is lost, computers alone play it", kMKV, kFFV1,
           kFLAC},
    Preset{"Music", "Plays on everything that plays music", kMP3File, kNoPicture,
           kMP3.Stereo(k44k).Between(128, 320)},
    Preset{"Lossless Music", "To keep music for good; half the size of a CD's tracks", kFLACFile, kNoPicture,
           kFLAC},
    Preset{"Spoken Word", "Podcasts, lectures and audio books: half a megabyte a minute", kM4A, kNoPicture,
           kAAC.Mono(k44k).Exactly(64)},
};

constexpr std::array kGroups{
    Group{"General", "", "What most people want; the first when in doubt", Icons::CategoryFaceIDGeneral,
          Offer::Everything, kPresets},
};

} // namespace

std::span<const Group> GeneralGroups() { return kGroups; }

} // namespace Vexlor::Catalog
