#include "ValueEntries.h"

#include "QualityBitrate.h"

#include "apps/studio/texts/ToolText.h"

#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"

#include <algorithm>

namespace Vexlor::Studio
{

ValueEntries::ValueEntries(IVXCodecPreset& codec, const ListFamily& family)
    : m_codec(codec), m_family(family), m_list(Tool::PresetListOf(family.kind, codec))
{
}

ValueEntries::~ValueEntries() = default;

QStringList ValueEntries::Texts() const
{
    QStringList texts;
    // The tools' list leaves out the bitrate of one's own.
    if (m_family.kind == Tool::PresetListKind::Quality)
        for (const auto& quality : m_codec.CodecQualityPresets())
            texts.append(GradeText(quality->FormatQuality()));
    else
        for (const auto& text : m_list->Texts())
            texts.append(ToolText(text));
    return texts;
}

int ValueEntries::Current() const { return m_list->Current(); }

void ValueEntries::Choose(int index)
{
    m_list->Choose(index);
    if (m_family.kind == Tool::PresetListKind::Quality)
        ProposeBitrate(m_codec);
}

void ValueEntries::Remove(int index) { (m_codec.*m_family.remove)(index); }

void ValueEntries::Move(int from, int to) { (m_codec.*m_family.move)(from, to); }

void ValueEntries::Reset()
{
    const auto before = Texts();
    const int current = Current();
    (m_codec.*m_family.reset)();
    const auto kept = current >= 0 && current < before.size() ? Texts().indexOf(before[current]) : 0;
    Choose(static_cast<int>(std::max<qsizetype>(kept, 0)));
}

std::optional<int> ValueEntries::Add(const QString& text)
{
    const auto shown = Texts().indexOf(text);
    return shown >= 0 ? std::optional(static_cast<int>(shown)) : m_list->FindValue(TypedText(text));
}

bool ValueEntries::OffersNothing() const
{
    const auto fresh = IVXCodecPreset::MallocCodecPreset(m_codec.CodecID());
    return Texts().size() <= 1 && Current() == 0 &&
           Tool::PresetListOf(m_family.kind, *fresh)->Texts().size() <= 1;
}

} // namespace Vexlor::Studio
