#pragma once

#include "EditRun.h"

#include <QWidget>

class QComboBox;
class QLineEdit;

namespace Vexlor
{
class IVXSampleAspectPreset;
}

namespace Vexlor::Studio
{

class CodecSession;
class FieldManners;
class MessageLine;

/// The shape of a codec preset's samples: a named one, or a ratio of the user's own.
class AspectRow final : public QWidget
{
    Q_OBJECT

public:
    AspectRow(CodecSession& session, FieldManners& manners, QWidget* parent = nullptr);

    /// Shows the shape as it is now.
    void Refresh();

private:
    void Choose(int index);
    void Store(const QString& text);
    void FinishRatio();
    void ShowRatio(const IVXSampleAspectPreset& aspect);

    CodecSession& m_session;
    EditRun m_run;
    QComboBox* m_shapes;
    QLineEdit* m_ratio;
    MessageLine* m_message;
};

} // namespace Vexlor::Studio
