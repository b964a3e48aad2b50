#include "catalog/presets/Preset.h"

#include <array>

namespace Vexlor::Catalog
{

namespace
{

// A container as it is: the rate and the channels of the source.
constexpr std::array kContainers{
    Preset{"MP3", "Plays on everything that plays music", kMP3File, kNoPicture, kMP3},
    Preset{"M4A", "Better than MP3 at the same size, for phones and computers: AAC", kM4A, kNoPicture, kAAC},
    Preset{"WAV", "For editing and for burning discs: uncompressed, 16 bits", kWAV, kNoPicture, kPCM16},
    Preset{"FLAC", "Without loss at about half the size of WAV", kFLACFile, kNoPicture, kFLAC},
    Preset{"OGG", "Free of royalties, for games and free programs: Vorbis", kOGG, kNoPicture, kVorbis},
    Preset{"OPUS", "The best there is at low bitrates, for messages and web pages", kOPUSFile, kNoPicture,
           kOpus},
    Preset{"WMA", "For old players of Windows", kWMA, kNoPicture, kWMA2},
    Preset{"AAC", "A bare stream for radio servers", kAACFile, kNoPicture, kAAC},
    Preset{"AC3", "A bare stream for authoring discs", kAC3File, kNoPicture, kAC3},
    Preset{"AIFF", "WAV for Apple's programs", kAIFF, kNoPicture, kPCM16BE},
    Preset{"CAF", "For Apple's sound programs: ALAC, without loss", kCAF, kNoPicture, kALAC},
    Preset{"MKA", "A library's sound with tags and chapters: Opus", kMKA, kNoPicture, kOpus},
};

// The bitrates of MPEG-1 layer III: ISO/IEC 11172-3 2.4.2.3. What each is good for: our choice.
constexpr std::array kInMP3{
    Preset{"MP3 320 kb/s", "The best that MP3 can do", kMP3File, kNoPicture, kMP3.Stereo(k44k).Exactly(320)},
    Preset{"MP3 256 kb/s", "Music that few can tell from the disc", kMP3File, kNoPicture,
           kMP3.Stereo(k44k).Exactly(256)},
    Preset{"MP3 192 kb/s", "Music for players with little room", kMP3File, kNoPicture,
           kMP3.Stereo(k44k).Exactly(192)},
    Preset{"MP3 128 kb/s", "A megabyte a minute", kMP3File, kNoPicture, kMP3.Stereo(k44k).Exactly(128)},
    Preset{"MP3 64 kb/s Mono", "Speech that everything plays", kMP3File, kNoPicture,
           kMP3.Mono(k44k).Exactly(64)},
};

constexpr std::array kInM4A{
    Preset{"M4A AAC 256 kb/s", "Music as the stores sell it", kM4A, kNoPicture,
           kAAC.Stereo(k44k).Exactly(256)},
    Preset{"M4A AAC 128 kb/s", "Music for phones, a megabyte a minute", kM4A, kNoPicture,
           kAAC.Stereo(k44k).Exactly(128)},
    Preset{"M4A AAC 64 kb/s Mono", "Podcasts and audio books", kM4A, kNoPicture, kAAC.Mono(k44k).Exactly(64)},
    Preset{"M4A ALAC", "Without loss, for Apple's devices", kM4A, kNoPicture, kALAC},
};

// 44.1 kHz, 16 bits: IEC 60908. 48 kHz, 24 bits: EBU R 68 and what studios hand on. 8 kHz: ITU-T G.711.
constexpr std::array kInWAV{
    Preset{"CD Audio", "To burn an audio disc", kWAV, kNoPicture, kPCM16.Stereo(k44k)},
    Preset{"Studio 48 kHz 24-bit", "For film and broadcast", kWAV, kNoPicture, kPCM24.Hertz(k48k)},
    Preset{"Studio 96 kHz 24-bit", "For mastering", kWAV, kNoPicture, kPCM24.Hertz(96'000)},
    Preset{"Mixing 32-bit Float", "To hand on between steps of a mix, never clipped", kWAV, kNoPicture,
           kPCMFloat},
    Preset{"Telephone Europe", "Announcements for telephone systems: A-law", kWAV, kNoPicture,
           kALaw.Mono(8'000)},
    Preset{"Telephone America", "Announcements for telephone systems: mu-law", kWAV, kNoPicture,
           kMuLaw.Mono(8'000)},
    Preset{"Sound Effects", "For games and small devices: a quarter of the size, IMA ADPCM", kWAV, kNoPicture,
           kADPCM.Hertz(22'050)},
};

// Opus by use: wiki.xiph.org/Opus_Recommended_Settings. AC-3 at 192 and 448 kb/s: ATSC A/52 and DVD practice.
constexpr std::array kSpecial{
    Preset{"Voice 24 kb/s", "Speech in the smallest file that is pleasant to hear", kOPUSFile, kNoPicture,
           kOpus.Mono(k48k).Exactly(24)},
    Preset{"Opus 96 kb/s", "Music for streaming", kOPUSFile, kNoPicture, kOpus.Stereo(k48k).Exactly(96)},
    Preset{"Opus 160 kb/s", "Music that few can tell from the disc", kOPUSFile, kNoPicture,
           kOpus.Stereo(k48k).Exactly(160)},
    Preset{"Ogg Opus", "Opus for programs that know the ending ogg alone", kOGG, kNoPicture, kOpus},
    Preset{"Ogg FLAC", "Without loss in a container that streams", kOGG, kNoPicture, kFLAC},
    Preset{"FLAC from 44.1 kHz Stereo", "A disc's tracks without loss", kFLACFile, kNoPicture,
           kFLAC.Stereo(k44k)},
    Preset{"FLAC Studio 24-bit", "Studio recordings without loss", kFLACFile, kNoPicture,
           kFLAC.Format("24-bit")},
    Preset{"AC-3 Stereo", "The stereo track of a disc", kAC3File, kNoPicture, kAC3.Stereo(k48k).Exactly(192)},
    Preset{"AC-3 Surround", "The 5.1 track of a disc", kAC3File, kNoPicture,
           kAC3.As(0x60F, k48k).Exactly(448)},
    Preset{"WMA 128 kb/s", "Music for players of Windows with little room", kWMA, kNoPicture,
           kWMA2.Stereo(k44k).Exactly(128)},
};

constexpr std::array kGroups{
    Group{"Audio", "", "Every container of sound, with the rate and the channels of the source",
          Icons::CategoryFaceIDAudio, Offer::Everything, kContainers},
    Group{"Audio", "More MP3", "MP3 by bitrate", Icons::FormatFaceIDMP3, Offer::Chosen, kInMP3},
    Group{"Audio", "More M4A", "AAC by bitrate, and ALAC", Icons::FormatFaceIDM4A, Offer::Chosen, kInM4A},
    Group{"Audio", "More WAV", "Discs, studios, telephones", Icons::FormatFaceIDWAV, Offer::Chosen, kInWAV},
    Group{"Audio", "More Sound", "Speech, surround sound, and without loss", FormatFaceIDAudio, Offer::Chosen,
          kSpecial},
};

} // namespace

std::span<const Group> AudioGroups() { return kGroups; }

} // namespace Vexlor::Catalog
