#pragma once

#include "OutcomeFacts.h"

#include <QWidget>

class QBoxLayout;

namespace Vexlor::Studio
{

class BitrateBar;
class SizeDrawing;

/// The drawings of sizes and bitrates, side by side where there is room.
class OutcomeDrawings final : public QWidget
{
    Q_OBJECT

public:
    explicit OutcomeDrawings(QWidget* parent = nullptr);

    /// Draws those; what has nothing to show is hidden.
    void SetFacts(const SizeFacts& sizes, const StreamBitrates& bitrates);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Arrange();

    SizeDrawing* m_sizes;
    BitrateBar* m_video;
    BitrateBar* m_audio;
    QBoxLayout* m_layout;
};

} // namespace Vexlor::Studio
