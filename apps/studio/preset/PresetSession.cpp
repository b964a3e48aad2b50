#include "PresetSession.h"

#include "apps/studio/document/StudioDocument.h"

namespace Vexlor::Studio
{

bool PresetSession::IsNameTaken(const QString& name) const
{
    const auto category = m_item ? m_document.Tree().ParentOf(m_item) : nullptr;
    return category && Studio::IsNameTaken(*category, m_item, name);
}

void PresetSession::EditLook(const QString& what, const std::function<void(ItemLook&)>& change, int run)
{
    if (m_item)
        m_document.EditLook(m_item, what, change, run);
}

void PresetSession::Edit(const QString& what, const std::function<void(IVXFormatPreset&)>& change, int run)
{
    if (Preset())
        m_document.EditPreset(Preset(), what, change, run);
}

std::shared_ptr<IVXCodecPreset> CodecSession::Codec() const
{
    const auto& preset = m_session.Preset();
    return preset ? CodecEntries(*preset, m_family).At(m_index) : nullptr;
}

void CodecSession::Edit(const QString& what, const std::function<void(IVXCodecPreset&)>& change, int run)
{
    const auto changeCodec = [&family = m_family, index = m_index, &change](IVXFormatPreset& preset)
    {
        if (const auto codec = CodecEntries(preset, family).At(index))
            change(*codec);
    };
    m_session.Edit(what, changeCodec, run);
}

} // namespace Vexlor::Studio
