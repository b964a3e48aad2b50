#pragma once

#include "PresetSession.h"

#include <QWidget>

class QBoxLayout;

namespace Vexlor::Studio
{

class CodecList;
class CodecPage;
class FieldManners;
class LimitsBox;
class MessageLine;

/// Pictures or sound of a format preset: its codec presets, the page of one of them, and the bounds.
class StreamPage final : public QWidget
{
    Q_OBJECT

public:
    StreamPage(PresetSession& session, Tool::StreamKind kind, FieldManners& manners,
               QWidget* parent = nullptr);

    /// Shows another format preset, with the page of its current codec preset.
    void Open();
    /// Shows the format preset as it is now.
    void Refresh();
    /// False where the container has no such stream.
    bool IsOfUse() const;

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void RefreshPage();
    QString Remark() const;

    CodecSession m_session;
    CodecList* m_codecs;
    CodecPage* m_page;
    LimitsBox* m_limits;
    MessageLine* m_message;
    QBoxLayout* m_sides;
};

} // namespace Vexlor::Studio
