#include "ListRow.h"

#include "ComboFilling.h"
#include "EditNames.h"
#include "EntryEditor.h"
#include "FieldManners.h"
#include "PresetSession.h"
#include "ValueEntries.h"

#include "IVXCodecPreset.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

namespace Vexlor::Studio
{

ListRow::ListRow(CodecSession& session, const ListFamily& family, FieldManners& manners, QWidget* parent)
    : QWidget(parent), m_session(session), m_family(family), m_layout(new QVBoxLayout(this)),
      m_entries(new QComboBox(this)), m_edit(new QToolButton(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    auto* line = new QHBoxLayout;
    line->addWidget(m_entries, 1);
    line->addWidget(m_edit);
    m_layout->addLayout(line);
    setFocusProxy(m_entries);
    setObjectName(QString::fromLatin1(family.noun));

    m_entries->setAccessibleName(Noun(family));
    LetShrink(*m_entries);
    manners.Teach(*m_entries);
    connect(m_entries, &QComboBox::activated, this, &ListRow::Choose);
    SetUpEditing();
    if (family.IsEditable())
        SetUpEditor(manners);
}

void ListRow::SetUpEditing()
{
    // Where the list is the codec's, the place stays empty, so that the fields end alike.
    auto policy = m_edit->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_edit->setSizePolicy(policy);
    m_edit->setVisible(m_family.IsEditable());
    m_edit->setText(QStringLiteral("…"));
    m_edit->setObjectName(QStringLiteral("edit"));
    m_edit->setCheckable(true);
    m_edit->setFocusPolicy(Qt::StrongFocus);
    m_edit->setToolTip(tr("Add, remove and move the entries of this list"));
    m_edit->setAccessibleName(tr("Edit entries of %1").arg(Noun(m_family)));
}

void ListRow::SetUpEditor(FieldManners& manners)
{
    m_editor = new EntryEditor(m_session, m_family, manners, this);
    m_editor->hide();
    m_layout->addWidget(m_editor);
    connect(m_edit, &QToolButton::toggled, this, &ListRow::OpenEditor);
    connect(m_editor, &EntryEditor::Closed, this, &ListRow::CloseEditor);
    m_toScroll.setSingleShot(true);
    connect(&m_toScroll, &QTimer::timeout, this, &ListRow::ScrollToEditor);
}

void ListRow::Refresh()
{
    const auto codec = m_session.Codec();
    if (!codec)
        return;
    const ValueEntries entries(*codec, m_family);
    FillCombo(*m_entries, entries.Texts(), entries.Current());
    if (m_editor != nullptr && m_edit->isChecked())
        m_editor->Refresh();
}

bool ListRow::IsOfUse() const
{
    const auto codec = m_session.Codec();
    return codec && !(m_family.isSeldom && ValueEntries(*codec, m_family).OffersNothing());
}

void ListRow::AddBelow(QWidget& widget) { m_layout->addWidget(&widget); }

void ListRow::Choose(int index)
{
    m_session.Edit(ChangeText(Noun(m_family), m_entries->itemText(index)),
                   [&](IVXCodecPreset& codec) { ValueEntries(codec, m_family).Choose(index); });
}

void ListRow::OpenEditor(bool isOpen)
{
    m_editor->setVisible(isOpen);
    if (!isOpen)
        return;
    m_editor->Open();
    // Where it lies is known when the layout has made room.
    m_toScroll.start(0);
}

void ListRow::ScrollToEditor()
{
    for (auto* widget = parentWidget(); widget != nullptr; widget = widget->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(widget))
            area->ensureWidgetVisible(m_editor);
}

void ListRow::CloseEditor()
{
    m_edit->setChecked(false);
    m_edit->setFocus();
}

} // namespace Vexlor::Studio
