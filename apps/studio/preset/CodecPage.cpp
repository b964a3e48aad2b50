#include "CodecPage.h"

#include "AspectRow.h"
#include "CustomBitrate.h"
#include "ListFamilies.h"
#include "ListRow.h"
#include "PresetSession.h"

#include <QFormLayout>
#include <QLabel>

namespace Vexlor::Studio
{

CodecPage::CodecPage(CodecSession& session, FieldManners& manners, QWidget* parent)
    : QWidget(parent), m_session(session), m_form(new QFormLayout(this))
{
    m_form->setContentsMargins(0, 0, 0, 0);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_form->setRowWrapPolicy(QFormLayout::WrapLongRows); // some languages have long words
    for (const auto& family : FamiliesOf(session.Family().kind))
        AddRow(family, manners);
    if (session.Family().kind == Tool::StreamKind::Video)
        AddAspect(manners);
}

void CodecPage::AddRow(const ListFamily& family, FieldManners& manners)
{
    auto* row = new ListRow(m_session, family, manners, this);
    if (family.kind == Tool::PresetListKind::Quality)
    {
        m_bitrate = new CustomBitrate(m_session, manners, row);
        row->AddBelow(*m_bitrate);
    }
    AddField(Label(family), *row);
    m_rows.push_back(row);
}

void CodecPage::AddAspect(FieldManners& manners)
{
    m_aspect = new AspectRow(m_session, manners, this);
    AddField(tr("&Sample aspect"), *m_aspect);
}

// A mnemonic leads to no buddy that takes no focus of its own.
void CodecPage::AddField(const QString& label, QWidget& field)
{
    m_form->addRow(label, &field);
    if (auto* shown = qobject_cast<QLabel*>(m_form->labelForField(&field)))
        shown->setBuddy(field.focusProxy());
}

void CodecPage::Refresh()
{
    for (auto* row : m_rows)
    {
        row->Refresh();
        m_form->setRowVisible(row, row->IsOfUse());
    }
    m_bitrate->Refresh();
    if (m_aspect != nullptr)
        m_aspect->Refresh();
}

} // namespace Vexlor::Studio
