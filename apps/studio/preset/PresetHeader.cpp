#include "PresetHeader.h"

#include "ComboFilling.h"
#include "DescriptionField.h"
#include "EditNames.h"
#include "FaceChoices.h"
#include "FieldManners.h"
#include "MessageLine.h"
#include "PresetSession.h"
#include "TextField.h"

#include "apps/studio/outcome/ShownText.h"

#include "IVXFormatPreset.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace Vexlor::Studio
{

PresetHeader::PresetHeader(PresetSession& session, FieldManners& manners, QWidget* parent)
    : QWidget(parent), m_session(session), m_name(new TextField(manners, this)),
      m_nameMessage(new MessageLine(this)), m_face(new QComboBox(this)), m_container(new QLabel(this)),
      m_description(new DescriptionField(manners, this))
{
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    SetUpName(*form);
    SetUpFace(*form, manners);
    m_container->setTextFormat(Qt::PlainText);
    m_container->setToolTip(tr("A preset keeps its container: make a new one for another."));
    form->addRow(tr("Container"), m_container);
    SetUpDescription(*form);
}

void PresetHeader::SetUpName(QFormLayout& form)
{
    form.addRow(tr("&Name"), m_name);
    form.addRow(m_nameMessage);
    m_name->setObjectName(QStringLiteral("name"));
    m_name->setAccessibleName(tr("name"));
    connect(m_name, &TextField::Typed, this, &PresetHeader::StoreName);
    connect(m_name, &QLineEdit::editingFinished, this, &PresetHeader::FinishName);
}

void PresetHeader::SetUpFace(QFormLayout& form, FieldManners& manners)
{
    form.addRow(tr("&Icon"), m_face);
    m_face->setObjectName(QStringLiteral("icon"));
    m_face->setAccessibleName(tr("icon"));
    LetShrink(*m_face);
    manners.Teach(*m_face);
    FillFaces(*m_face);
    connect(m_face, &QComboBox::activated, this, &PresetHeader::StoreFace);
}

void PresetHeader::SetUpDescription(QFormLayout& form)
{
    form.addRow(tr("&Description"), m_description);
    m_description->setObjectName(QStringLiteral("description"));
    m_description->setAccessibleName(tr("description"));
    connect(m_description, &DescriptionField::Typed, this,
            [this](const QString& text, int run)
            {
                m_session.Edit(
                    ChangeText(tr("description")),
                    [&](IVXFormatPreset& preset) { preset.SetDescription(text.toStdString()); }, run);
            });
}

void PresetHeader::Refresh()
{
    const auto& preset = m_session.Preset();
    if (!preset)
        return;
    m_name->Show(QString::fromStdString(preset->Name()));
    m_container->setText(ShownText(preset->FormatName()));
    m_description->Show(QString::fromStdString(preset->Description()));
    ShowFace(preset->FaceID());
}

void PresetHeader::StoreName(const QString& name, int run)
{
    const auto reason = ReasonAgainst(name.trimmed());
    m_nameMessage->Say(reason);
    if (reason.isEmpty())
        m_session.Edit(
            ChangeText(tr("name")), [&](IVXFormatPreset& preset) { preset.SetName(name.toStdString()); },
            run);
}

QString PresetHeader::ReasonAgainst(const QString& name) const
{
    if (name.isEmpty())
        return tr("A preset needs a name.");
    return m_session.IsNameTaken(name) ? tr("\"%1\" is there already.").arg(name) : QString();
}

void PresetHeader::FinishName()
{
    m_nameMessage->Say({});
    Refresh();
}

void PresetHeader::StoreFace(int index)
{
    const int faceID = m_face->itemData(index).toInt();
    m_session.Edit(ChangeText(tr("icon"), m_face->itemText(index)),
                   [faceID](IVXFormatPreset& preset) { preset.SetFaceID(faceID); });
}

void PresetHeader::ShowFace(int faceID)
{
    const QSignalBlocker blocker(m_face);
    m_face->setCurrentIndex(m_face->findData(faceID));
    m_face->setPlaceholderText(tr("Unknown icon %1").arg(faceID));
}

} // namespace Vexlor::Studio
