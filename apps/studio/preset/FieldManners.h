#pragma once

#include <QObject>

class QWidget;

namespace Vexlor::Studio
{

/// How the fields of the pane behave: the wheel scrolls the pane over a field that is not being edited, and
/// taking back is left to the document, which knows more steps than the field.
class FieldManners final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Teaches them to that field and to what is typed into inside of it.
    void Teach(QWidget& field);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace Vexlor::Studio
