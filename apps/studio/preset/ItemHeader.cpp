#include "ItemHeader.h"

#include "ComboFilling.h"
#include "DescriptionField.h"
#include "EditNames.h"
#include "FaceChoices.h"
#include "FieldManners.h"
#include "MessageLine.h"
#include "PresetSession.h"
#include "TextField.h"

#include "apps/studio/ShownText.h"

#include "IVXFormatPreset.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <utility>

namespace Vexlor::Studio
{

ItemHeader::ItemHeader(PresetSession& session, FieldManners& manners, QWidget* parent)
    : QWidget(parent), m_session(session), m_name(new TextField(manners, this)),
      m_nameMessage(new MessageLine(this)), m_face(new QComboBox(this)), m_form(new QFormLayout(this)),
      m_container(new QLabel(this)), m_description(new DescriptionField(manners, this))
{
    m_form->setContentsMargins(0, 0, 0, 0);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    SetUpName(*m_form);
    SetUpFace(*m_form, manners);
    m_container->setTextFormat(Qt::PlainText);
    m_container->setToolTip(tr("A preset keeps its container: make a new one for another."));
    m_form->addRow(tr("Container"), m_container);
    SetUpDescription(*m_form);
}

void ItemHeader::SetUpName(QFormLayout& form)
{
    form.addRow(tr("&Name"), m_name);
    form.addRow(m_nameMessage);
    m_name->setObjectName(QStringLiteral("name"));
    m_name->setAccessibleName(tr("name"));
    connect(m_name, &TextField::Typed, this, &ItemHeader::StoreName);
    connect(m_name, &QLineEdit::editingFinished, this, &ItemHeader::FinishName);
}

void ItemHeader::SetUpFace(QFormLayout& form, FieldManners& manners)
{
    form.addRow(tr("&Icon"), m_face);
    m_face->setObjectName(QStringLiteral("icon"));
    m_face->setAccessibleName(tr("icon"));
    LetShrink(*m_face);
    manners.Teach(*m_face);
    FillFaces(*m_face);
    connect(m_face, &QComboBox::activated, this, &ItemHeader::StoreFace);
}

void ItemHeader::SetUpDescription(QFormLayout& form)
{
    form.addRow(tr("&Description"), m_description);
    m_description->setObjectName(QStringLiteral("description"));
    m_description->setAccessibleName(tr("description"));
    connect(m_description, &DescriptionField::Typed, this,
            [this](const QString& text, int run)
            {
                m_session.EditLook(
                    ChangeText(tr("description")), [&](ItemLook& look) { look.description = text; }, run);
            });
}

void ItemHeader::Refresh()
{
    if (!m_session.Item())
        return;
    if (!(m_named == m_session.Item()))
        BeginName();
    const auto look = LookOf(m_session.Item());
    const auto& preset = m_session.Preset();
    m_name->Show(look.name);
    m_container->setText(preset ? ShownText(preset->FormatName()) : QString());
    m_container->setVisible(preset != nullptr);
    m_form->labelForField(m_container)->setVisible(preset != nullptr);
    m_description->Show(look.description);
    ShowFace(look.faceID);
}

void ItemHeader::BeginName()
{
    m_named = m_session.Item();
    m_nameRun = 0;
    m_nameMessage->Say({});
}

void ItemHeader::StoreName(const QString& name, int run)
{
    if (std::exchange(m_nameRun, run) != run)
        m_nameBefore = LookOf(m_session.Item()).name;
    const auto reason = ReasonAgainst(name.trimmed());
    m_nameMessage->Say(reason);
    if (reason.isEmpty())
        SetName(name, run);
}

void ItemHeader::SetName(const QString& name, int run)
{
    m_session.EditLook(
        ChangeText(tr("name")), [&](ItemLook& look) { look.name = name; }, run);
}

QString ItemHeader::ReasonAgainst(const QString& name) const
{
    if (name.isEmpty())
        return m_session.Preset() ? tr("A preset needs a name.") : tr("A category needs a name.");
    return m_session.IsNameTaken(name) ? tr("\"%1\" is there already.").arg(name) : QString();
}

// What was typed on the way to a name that is refused was never meant to be one. The reason stays.
void ItemHeader::FinishName()
{
    const int run = std::exchange(m_nameRun, 0);
    if (run == 0 || !(m_named == m_session.Item()))
        return;
    const auto name = m_name->text().trimmed();
    SetName(ReasonAgainst(name).isEmpty() ? name : m_nameBefore, run);
    Refresh();
}

void ItemHeader::StoreFace(int index)
{
    const int faceID = m_face->itemData(index).toInt();
    m_session.EditLook(ChangeText(tr("icon"), m_face->itemText(index)),
                       [faceID](ItemLook& look) { look.faceID = faceID; });
}

void ItemHeader::ShowFace(int faceID)
{
    const QSignalBlocker blocker(m_face);
    m_face->setCurrentIndex(m_face->findData(faceID));
    m_face->setPlaceholderText(tr("Unknown icon %1").arg(faceID));
}

} // namespace Vexlor::Studio
