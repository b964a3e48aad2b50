#include "PresetSession.h"

#include "apps/studio/document/StudioDocument.h"

namespace Vexlor::Studio
{

bool PresetSession::IsNameTaken(const QString& name) const
{
    const TreeItem item{{}, m_preset};
    const auto category = m_preset ? m_document.Tree().ParentOf(item) : nullptr;
    return category && Studio::IsNameTaken(*category, item, name);
}

void PresetSession::Edit(const QString& what, const std::function<void(IVXFormatPreset&)>& change, int run)
{
    if (m_preset)
        m_document.EditPreset(m_preset, what, change, run);
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
