#include "CodecEntries.h"

#include "apps/studio/ShownText.h"

#include "IVXCodecPreset.h"
#include "IVXFormat.h"
#include "IVXFormatPreset.h"
#include "VXMediaCodecs.h"

#include <QCoreApplication>

namespace Vexlor::Studio
{

namespace
{

using Preset = IVXFormatPreset;

constexpr StreamFamily kVideo{Tool::StreamKind::Video,
                              QT_TRANSLATE_NOOP("StreamFamily", "video codec"),
                              &Preset::VideoCodecPresetCount,
                              &Preset::VideoCodecPreset,
                              &Preset::IndexForVideoCodecPresets,
                              &Preset::SetIndexForVideoCodecPresets,
                              &Preset::AddVideoCodecPreset,
                              &Preset::RemoveVideoCodecPreset,
                              &Preset::MoveVideoCodecPreset,
                              &IVXFormat::VideoCodecIDs};
constexpr StreamFamily kAudio{Tool::StreamKind::Audio,
                              QT_TRANSLATE_NOOP("StreamFamily", "audio codec"),
                              &Preset::AudioCodecPresetCount,
                              &Preset::AudioCodecPreset,
                              &Preset::IndexForAudioCodecPresets,
                              &Preset::SetIndexForAudioCodecPresets,
                              &Preset::AddAudioCodecPreset,
                              &Preset::RemoveAudioCodecPreset,
                              &Preset::MoveAudioCodecPreset,
                              &IVXFormat::AudioCodecIDs};

// A document may hold a codec that the library does not know.
QString NameOf(const IVXCodecPreset& codec)
{
    const auto name = ShownText(codec.Name());
    return name.isEmpty()
               ? QCoreApplication::translate("StreamFamily", "Unknown codec %1").arg(codec.CodecID())
               : name;
}

} // namespace

const StreamFamily& StreamOf(Tool::StreamKind kind)
{
    return kind == Tool::StreamKind::Video ? kVideo : kAudio;
}

QString Noun(const StreamFamily& family) { return QCoreApplication::translate("StreamFamily", family.noun); }

QStringList CodecEntries::Texts() const
{
    QStringList texts;
    for (int i = 0; i < (m_preset.*m_family.count)(); ++i)
        texts.append(NameOf(*At(i)));
    return texts;
}

int CodecEntries::Current() const { return (m_preset.*m_family.current)(); }

void CodecEntries::Choose(int index) { (m_preset.*m_family.choose)(index); }

void CodecEntries::Remove(int index) { (m_preset.*m_family.remove)(index); }

void CodecEntries::Move(int from, int to) { (m_preset.*m_family.move)(from, to); }

std::shared_ptr<IVXCodecPreset> CodecEntries::At(int index) const { return (m_preset.*m_family.at)(index); }

void CodecEntries::Add(int codecID) { (m_preset.*m_family.add)(codecID); }

std::vector<int> CodecEntries::Addable() const
{
    std::vector<int> codecIDs{VXCodecID_None};
    const auto format = m_preset.GetFormat();
    const auto taken = format ? ((*format).*m_family.taken)() : std::vector<int>();
    codecIDs.insert(codecIDs.end(), taken.begin(), taken.end());
    for (int i = 0; i < (m_preset.*m_family.count)(); ++i)
        std::erase(codecIDs, At(i)->CodecID());
    return codecIDs;
}

} // namespace Vexlor::Studio
