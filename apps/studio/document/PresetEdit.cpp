#include "PresetEdit.h"

#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <utility>
#include <vector>

namespace Vexlor::Studio
{

namespace
{

constexpr int kMergeableID = 1;

// Custom bitrates are in no document.
std::vector<int> BitratesOf(const IVXFormatPreset& preset)
{
    std::vector<int> bitrates;
    for (const auto& codecs : {preset.VideoCodecPresets(), preset.AudioCodecPresets()})
        for (const auto& codec : codecs)
            for (const auto& quality : codec->CodecQualityPresets())
                bitrates.insert(bitrates.end(), {quality->Bitrate(), quality->MinBitrate(), quality->Mode()});
    return bitrates;
}

bool AreAlike(const IVXFormatPreset& one, const IVXFormatPreset& other)
{
    return BitratesOf(one) == BitratesOf(other) && JsonText(*one.JsonValue()) == JsonText(*other.JsonValue());
}

} // namespace

PresetEdit::PresetEdit(Preset preset, Preset after, int run, Tell tell)
    : m_preset(std::move(preset)), m_before(m_preset->Clone()), m_after(std::move(after)), m_run(run),
      m_tell(std::move(tell))
{
}

bool PresetEdit::IsIdle() const { return AreAlike(*m_before, *m_after); }

int PresetEdit::id() const { return m_run == 0 ? -1 : kMergeableID; }

bool PresetEdit::mergeWith(const QUndoCommand* other)
{
    const auto* next = dynamic_cast<const PresetEdit*>(other);
    if (next == nullptr || next->m_preset != m_preset || next->m_run != m_run)
        return false;
    m_after = next->m_after;
    setObsolete(IsIdle() && childCount() == 0); // what it did besides is to be undone
    return true;
}

void PresetEdit::undo()
{
    Become(m_before);
    QUndoCommand::undo();
}

void PresetEdit::redo()
{
    QUndoCommand::redo();
    Become(m_after);
}

void PresetEdit::Become(const Preset& state) const
{
    m_preset->CopyFrom(state);
    m_tell(m_preset);
}

} // namespace Vexlor::Studio
