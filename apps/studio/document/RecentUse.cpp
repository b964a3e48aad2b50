#include "RecentUse.h"

#include "RecentStore.h"
#include "StudioDocument.h"

#include <algorithm>
#include <exception>

namespace Vexlor::Studio
{

RecentUse::RecentUse(StudioDocument& document, QObject* parent) : QObject(parent), m_document(document)
{
    connect(&document, &StudioDocument::Replaced, this, &RecentUse::BringBack);
}

void RecentUse::Note(const IVXFormatPreset& preset, const IVXFormatPreset& asItWas)
{
    m_document.NoteUsed(preset, asItWas);
    Try([&] { RecentStore::Note(m_document.Path(), asItWas); });
}

void RecentUse::BringBack()
{
    Try(
        [this]
        {
            auto presets = RecentStore::PresetsOf(m_document.Path());
            std::ranges::reverse(presets); // each comes to the front
            for (const auto& preset : presets)
                m_document.NoteUsed(*preset, *preset);
        });
}

void RecentUse::Forget()
{
    Try([this] { RecentStore::Forget(m_document.Path()); });
}

void RecentUse::Try(const std::function<void()>& work)
{
    try
    {
        work();
    }
    catch (const std::exception& failure)
    {
        emit Failed(QString::fromUtf8(failure.what()));
    }
}

} // namespace Vexlor::Studio
