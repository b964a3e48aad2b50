#include "EntryEditor.h"

#include "EditNames.h"
#include "EntryListBox.h"
#include "EntryListView.h"
#include "FieldManners.h"
#include "MessageLine.h"
#include "PresetSession.h"
#include "ValueEntries.h"

#include "apps/host/Failure.h"
#include "apps/studio/texts/ToolText.h"

#include "IVXCodecPreset.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace Vexlor::Studio
{

EntryEditor::EntryEditor(CodecSession& session, const ListFamily& family, FieldManners& manners,
                         QWidget* parent)
    : QWidget(parent), m_session(session), m_family(family), m_noun(Noun(family)),
      m_input(new QLineEdit(this)), m_message(new MessageLine(this)), m_entries(new EntryListBox(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* line = new QHBoxLayout;
    line->addWidget(m_input);
    layout->addLayout(line);
    layout->addWidget(m_message);
    layout->addWidget(m_entries);
    auto* add = new QToolButton(this);
    add->setText(tr("Add"));
    add->setObjectName(QStringLiteral("add"));
    add->setAccessibleName(tr("Add %1").arg(m_noun));
    add->setFocusPolicy(Qt::StrongFocus);
    line->addWidget(add);
    connect(add, &QToolButton::clicked, this, &EntryEditor::Add);
    setTabOrder(m_input, add);
    setTabOrder(add, &m_entries->List());
    SetUpInput(manners);
    SetUpList();
    setFocusProxy(m_input);
}

void EntryEditor::SetUpInput(FieldManners& manners)
{
    m_input->setObjectName(QStringLiteral("input"));
    m_input->setPlaceholderText(QCoreApplication::translate("ListFamily", m_family.example));
    m_input->setAccessibleName(tr("New %1").arg(m_noun));
    manners.Teach(*m_input);
    connect(m_input, &QLineEdit::returnPressed, this, &EntryEditor::Add);
    connect(m_input, &QLineEdit::textEdited, m_message, [this] { m_message->Say({}); });
}

void EntryEditor::SetUpList()
{
    m_entries->SetNoun(m_noun);
    auto& list = m_entries->List();
    connect(&list, &EntryListView::ChooseAsked, this, &EntryEditor::Choose);
    connect(&list, &EntryListView::RemoveAsked, this, &EntryEditor::Remove);
    connect(&list, &EntryListView::MoveAsked, this, &EntryEditor::Move);
    auto* reset = new QToolButton(m_entries);
    reset->setText(tr("Reset"));
    reset->setObjectName(QStringLiteral("reset"));
    reset->setToolTip(tr("Offer what the codec offers by itself"));
    reset->setAccessibleName(tr("Reset entries of %1").arg(m_noun));
    reset->setFocusPolicy(Qt::StrongFocus);
    m_entries->AddButton(*reset, false);
    connect(reset, &QToolButton::clicked, this, &EntryEditor::Reset);
}

void EntryEditor::Open()
{
    Refresh();
    if (const auto codec = m_session.Codec())
        m_entries->Select(ValueEntries(*codec, m_family).Current());
    m_message->Say({});
    m_input->setFocus();
}

void EntryEditor::Refresh()
{
    const auto codec = m_session.Codec();
    if (!codec)
        return;
    const ValueEntries entries(*codec, m_family);
    m_entries->Fill(entries.Texts(), entries.Current());
}

void EntryEditor::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        emit Closed();
    else
        QWidget::keyPressEvent(event);
}

void EntryEditor::Add()
{
    const auto text = m_input->text().trimmed();
    const int count = m_entries->List().count();
    std::optional<int> index;
    try
    {
        m_session.Edit(AddText(m_noun, text),
                       [&](IVXCodecPreset& codec) { index = ValueEntries(codec, m_family).Add(text); });
    }
    catch (const Tool::Failure& failure)
    {
        m_message->Say(ToolText(failure.what()));
        return;
    }
    if (index)
        Show(*index, count, text);
    else
        m_message->Say(tr("“%1” tells no %2. An example: %3")
                           .arg(text, m_noun, QCoreApplication::translate("ListFamily", m_family.example)));
}

void EntryEditor::Show(int index, int countBefore, const QString& text)
{
    m_message->Say(index < countBefore ? tr("“%1” is in the list already.").arg(text) : QString());
    m_entries->List().setCurrentRow(index);
    m_entries->List().scrollToItem(m_entries->List().item(index));
    m_input->selectAll();
}

void EntryEditor::Choose(int row)
{
    m_session.Edit(ChangeText(m_noun, TextAt(row)),
                   [&](IVXCodecPreset& codec) { ValueEntries(codec, m_family).Choose(row); });
}

void EntryEditor::Remove(int row)
{
    const auto remove = [&](IVXCodecPreset& codec)
    {
        ValueEntries entries(codec, m_family);
        RemoveEntry(entries, row);
    };
    m_session.Edit(RemoveText(m_noun, TextAt(row)), remove);
}

void EntryEditor::Move(int row, int by)
{
    const auto move = [&](IVXCodecPreset& codec)
    {
        ValueEntries entries(codec, m_family);
        MoveEntry(entries, row, by);
    };
    m_session.Edit(MoveText(m_noun, TextAt(row)), move);
    if (m_entries->List().item(row + by) != nullptr)
        m_entries->List().setCurrentRow(row + by);
}

void EntryEditor::Reset()
{
    m_session.Edit(ResetText(m_noun), [&](IVXCodecPreset& codec) { ValueEntries(codec, m_family).Reset(); });
}

QString EntryEditor::TextAt(int row) const
{
    const auto* item = m_entries->List().item(row);
    return item != nullptr ? item->text() : QString();
}

} // namespace Vexlor::Studio
