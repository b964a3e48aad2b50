#pragma once

#include "EditRun.h"

#include <QLineEdit>

namespace Vexlor::Studio
{

class FieldManners;

/// One line of the document's text, stored while one types.
class TextField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit TextField(FieldManners& manners, QWidget* parent = nullptr);

    /// Shows the text, where it is another; the cursor stays where it can.
    void Show(const QString& text);

signals:
    /// The text is to be stored, as a step of that run.
    void Typed(const QString& text, int run);

private:
    EditRun m_run;
};

} // namespace Vexlor::Studio
