#pragma once

#include "EditRun.h"

#include <QPlainTextEdit>

namespace Vexlor::Studio
{

class FieldManners;

/// A few lines of the document's text, stored while one types.
class DescriptionField final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit DescriptionField(FieldManners& manners, QWidget* parent = nullptr);

    /// Shows the text, where it is another; the cursor stays where it can.
    void Show(const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// The text is to be stored, as a step of that run.
    void Typed(const QString& text, int run);

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    EditRun m_run;
};

} // namespace Vexlor::Studio
