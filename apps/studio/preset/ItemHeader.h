#pragma once

#include "apps/studio/document/TreeItem.h"

#include <QWidget>

class QComboBox;
class QFormLayout;
class QLabel;

namespace Vexlor::Studio
{

class DescriptionField;
class FieldManners;
class MessageLine;
class PresetSession;
class TextField;

/// What a format preset or a category is called and how it is shown: name, icon and description, and the
/// container of a preset.
class ItemHeader final : public QWidget
{
    Q_OBJECT

public:
    ItemHeader(PresetSession& session, FieldManners& manners, QWidget* parent = nullptr);

    /// Shows them as they are now.
    void Refresh();

private:
    void SetUpName(QFormLayout& form);
    void SetUpFace(QFormLayout& form, FieldManners& manners);
    void SetUpDescription(QFormLayout& form);
    void BeginName();
    void SetName(const QString& name, int run);
    void StoreName(const QString& name, int run);
    QString ReasonAgainst(const QString& name) const;
    void FinishName();
    void StoreFace(int index);
    void ShowFace(int faceID);

    PresetSession& m_session;
    TextField* m_name;
    MessageLine* m_nameMessage;
    QComboBox* m_face;
    QFormLayout* m_form;
    QLabel* m_container;
    DescriptionField* m_description;
    TreeItem m_named;     ///< what the name that is shown belongs to
    int m_nameRun = 0;    ///< while a name is typed, its run
    QString m_nameBefore; ///< the name that stood there then
};

} // namespace Vexlor::Studio
