#include "ListFamilies.h"

#include "IVXCodecPreset.h"

#include <QCoreApplication>

#include <array>

namespace Vexlor::Studio
{

namespace
{

using Codec = IVXCodecPreset;
using enum Tool::PresetListKind;

constexpr ListFamily kProfile{Profile,
                              QT_TRANSLATE_NOOP("ListFamily", "Profile"),
                              QT_TRANSLATE_NOOP("ListFamily", "profile"),
                              QT_TRANSLATE_NOOP("ListFamily", "a name or a number"),
                              true,
                              &Codec::RemoveProfilePreset,
                              &Codec::MoveProfilePreset,
                              &Codec::ResetProfilePresets};
constexpr ListFamily kLevel{Level,
                            QT_TRANSLATE_NOOP("ListFamily", "&Level"),
                            QT_TRANSLATE_NOOP("ListFamily", "level"),
                            QT_TRANSLATE_NOOP("ListFamily", "a name or a number"),
                            true,
                            &Codec::RemoveLevelPreset,
                            &Codec::MoveLevelPreset,
                            &Codec::ResetLevelPresets};
constexpr ListFamily kQuality{Quality, QT_TRANSLATE_NOOP("ListFamily", "&Quality"),
                              QT_TRANSLATE_NOOP("ListFamily", "quality")};

constexpr std::array kVideo{
    ListFamily{Resolution, QT_TRANSLATE_NOOP("ListFamily", "&Resolution"),
               QT_TRANSLATE_NOOP("ListFamily", "resolution"), QT_TRANSLATE_NOOP("ListFamily", "1440x1080"),
               false, &Codec::RemoveResolutionPreset, &Codec::MoveResolutionPreset,
               &Codec::ResetResolutionPresets},
    ListFamily{FrameRate, QT_TRANSLATE_NOOP("ListFamily", "Frame rate"),
               QT_TRANSLATE_NOOP("ListFamily", "frame rate"),
               QT_TRANSLATE_NOOP("ListFamily", "25 or 30000/1001"), false, &Codec::RemoveFrameratePreset,
               &Codec::MoveFrameratePreset, &Codec::ResetFrameratePresets},
    kQuality,
    ListFamily{Format, QT_TRANSLATE_NOOP("ListFamily", "Pi&xel format"),
               QT_TRANSLATE_NOOP("ListFamily", "pixel format")},
    kProfile,
    kLevel,
};

constexpr std::array kAudio{
    ListFamily{SampleRate, QT_TRANSLATE_NOOP("ListFamily", "Sample &rate"),
               QT_TRANSLATE_NOOP("ListFamily", "sample rate"),
               QT_TRANSLATE_NOOP("ListFamily", "48000 or 44.1 kHz"), false, &Codec::RemoveSampleratePreset,
               &Codec::MoveSampleratePreset, &Codec::ResetSampleratePresets},
    ListFamily{Channels, QT_TRANSLATE_NOOP("ListFamily", "Channel&s"),
               QT_TRANSLATE_NOOP("ListFamily", "channel layout"),
               QT_TRANSLATE_NOOP("ListFamily", "Stereo, 5.1 or 0x3"), false,
               &Codec::RemoveChannelLayoutPreset, &Codec::MoveChannelLayoutPreset,
               &Codec::ResetChannelLayoutPresets},
    kQuality,
    ListFamily{Format, QT_TRANSLATE_NOOP("ListFamily", "Sample format"),
               QT_TRANSLATE_NOOP("ListFamily", "sample format")},
    kProfile,
    kLevel,
};

} // namespace

std::span<const ListFamily> FamiliesOf(Tool::StreamKind kind)
{
    return kind == Tool::StreamKind::Video ? std::span<const ListFamily>(kVideo) : kAudio;
}

QString Label(const ListFamily& family) { return QCoreApplication::translate("ListFamily", family.label); }

QString Noun(const ListFamily& family) { return QCoreApplication::translate("ListFamily", family.noun); }

} // namespace Vexlor::Studio
