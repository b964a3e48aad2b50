#include "CodecList.h"

#include "EditNames.h"
#include "EntryListBox.h"
#include "EntryListView.h"
#include "PresetSession.h"

#include "apps/studio/ShownText.h"

#include "IVXCodecPreset.h"
#include "IVXFormatPreset.h"

#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Vexlor::Studio
{

CodecList::CodecList(CodecSession& session, QWidget* parent)
    : QWidget(parent), m_session(session), m_noun(Noun(session.Family())), m_entries(new EntryListBox(this)),
      m_codecs(new QMenu(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_entries);
    setFocusProxy(m_entries);
    m_entries->SetNoun(m_noun);
    SetUpAdding();

    auto& list = m_entries->List();
    connect(&list, &QListWidget::currentRowChanged, this, &CodecList::Open);
    connect(&list, &EntryListView::ChooseAsked, this, &CodecList::Choose);
    connect(&list, &EntryListView::RemoveAsked, this, &CodecList::Remove);
    connect(&list, &EntryListView::MoveAsked, this, &CodecList::Move);
}

void CodecList::SetUpAdding()
{
    auto* add = new QToolButton(this);
    add->setText(QStringLiteral("+"));
    add->setObjectName(QStringLiteral("add"));
    add->setToolTip(tr("Add a codec that the container takes"));
    add->setAccessibleName(tr("Add %1").arg(m_noun));
    add->setFocusPolicy(Qt::StrongFocus);
    add->setPopupMode(QToolButton::InstantPopup);
    add->setMenu(m_codecs);
    m_entries->AddButton(*add, true);
    connect(m_codecs, &QMenu::aboutToShow, this, &CodecList::OfferCodecs);
}

void CodecList::OfferCodecs()
{
    m_codecs->clear();
    const auto& preset = m_session.Whole().Preset();
    const auto codecIDs = preset ? CodecEntries(*preset, m_session.Family()).Addable() : std::vector<int>();
    for (const int codecID : codecIDs)
    {
        const auto name = ShownText(IVXCodecPreset::MallocCodecPreset(codecID)->Name());
        m_codecs->addAction(name, this, [this, codecID, name] { Add(codecID, name); });
    }
    if (codecIDs.empty())
        m_codecs->addAction(tr("All codecs that the container takes are there"))->setEnabled(false);
}

void CodecList::Refresh()
{
    const auto& preset = m_session.Whole().Preset();
    if (!preset)
        return;
    const CodecEntries entries(*preset, m_session.Family());
    const auto texts = entries.Texts();
    m_entries->Fill(texts, entries.Current());
    m_entries->Select(std::clamp(m_session.Index(), 0, std::max(0, static_cast<int>(texts.size()) - 1)));
    m_session.Open(m_entries->List().currentRow());
}

void CodecList::OpenCurrent()
{
    const auto& preset = m_session.Whole().Preset();
    m_session.Open(preset ? CodecEntries(*preset, m_session.Family()).Current() : -1);
}

void CodecList::Open(int row)
{
    m_session.Open(row);
    emit Opened();
}

void CodecList::Add(int codecID, const QString& name)
{
    const auto add = [&](IVXFormatPreset& preset) { CodecEntries(preset, m_session.Family()).Add(codecID); };
    m_session.Whole().Edit(AddText(m_noun, name), add);
    m_entries->List().setCurrentRow(m_entries->List().count() - 1);
}

void CodecList::Choose(int row)
{
    const auto choose = [&](IVXFormatPreset& preset)
    { CodecEntries(preset, m_session.Family()).Choose(row); };
    m_session.Whole().Edit(ChangeText(m_noun, TextAt(row)), choose);
}

void CodecList::Remove(int row)
{
    const auto remove = [&](IVXFormatPreset& preset)
    {
        CodecEntries entries(preset, m_session.Family());
        RemoveEntry(entries, row);
    };
    m_session.Whole().Edit(RemoveText(m_noun, TextAt(row)), remove);
}

void CodecList::Move(int row, int by)
{
    const auto move = [&](IVXFormatPreset& preset)
    {
        CodecEntries entries(preset, m_session.Family());
        MoveEntry(entries, row, by);
    };
    m_session.Whole().Edit(MoveText(m_noun, TextAt(row)), move);
    if (m_entries->List().item(row + by) != nullptr)
        m_entries->List().setCurrentRow(row + by);
}

QString CodecList::TextAt(int row) const
{
    const auto* item = m_entries->List().item(row);
    return item != nullptr ? item->text() : QString();
}

} // namespace Vexlor::Studio
