#include "RecentUse.h"

#include "RecentStore.h"
#include "StudioDocument.h"
#include "apps/studio/texts/ToolText.h"

#include "IVXFormatPreset.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace Vexlor::Studio
{

namespace
{

constexpr int kRest = 2000; // milliseconds, until it is tried again

} // namespace

RecentUse::RecentUse(StudioDocument& document, QObject* parent) : QObject(parent), m_document(document)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(kRest);
    connect(&m_timer, &QTimer::timeout, this, &RecentUse::DoPending);
    connect(&document, &StudioDocument::Replaced, this, &RecentUse::BringBack);
}

// The last chance; nobody is left to be told.
RecentUse::~RecentUse()
{
    blockSignals(true);
    DoPending();
}

RecentUse::Place RecentUse::Here() const { return {m_document.Root(), m_document.Path()}; }

// The document may have got another path meanwhile, or been read again.
void RecentUse::Note(const Place& place, const IVXFormatPreset& preset, const IVXFormatPreset& asItWas)
{
    const bool isHere = place.root == m_document.Root() || place.path == m_document.Path();
    if (isHere)
        m_document.NoteUsed(preset, asItWas);
    Do([path = isHere ? m_document.Path() : place.path, preset = asItWas.Clone()]
       { RecentStore::Note(path, *preset); });
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
    Do([path = m_document.Path()] { RecentStore::Forget(path); });
}

void RecentUse::Do(std::function<void()> work)
{
    m_pending.push_back(std::move(work));
    DoPending();
}

void RecentUse::DoPending()
{
    while (!m_pending.empty() && Try(m_pending.front()))
        m_pending.pop_front();
    if (!m_pending.empty())
        m_timer.start();
}

/// Answers false where it is to be tried again.
bool RecentUse::Try(const std::function<void()>& work)
{
    try
    {
        work();
    }
    catch (const RecentStore::Busy& busy)
    {
        emit Failed(ToolText(busy.what()));
        return false;
    }
    catch (const std::exception& failure)
    {
        emit Failed(ToolText(failure.what()));
    }
    return true;
}

} // namespace Vexlor::Studio
