#pragma once

#include "SizeWords.h"

#include <QWidget>

namespace Vexlor::Studio
{

/// Draws a source's picture and the output's beside it, to one scale, with the bounds around the output; what
/// is padded, cut off or stretched is hatched.
class SizeDrawing final : public QWidget
{
    Q_OBJECT

public:
    explicit SizeDrawing(QWidget* parent = nullptr);

    /// Draws those sizes, and describes them in words for those who cannot see it.
    void SetFacts(const SizeFacts& facts);
    /// Where they are drawn now.
    SizeGeometry Geometry() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF Area() const;
    QFont TitleFont() const;
    void DrawCaption(QPainter& painter, const QStringList& lines, const QRectF& half) const;
    int CaptionLines() const;

    SizeFacts m_facts;
    SizeWords m_words;
};

} // namespace Vexlor::Studio
