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
    void resizeEvent(QResizeEvent* event) override;

private:
    QRectF Area(double height) const;
    double PictureHeight() const;
    QFont FontOf(int line) const;
    double LineHeight(int line, const QString& text, double width) const;
    double CaptionHeight(const QStringList& lines, double width) const;
    std::pair<QRectF, QRectF> Halves() const;
    void DrawCaption(QPainter& painter, const QStringList& lines, const QRectF& half) const;

    SizeFacts m_facts;
    SizeWords m_words;
};

} // namespace Vexlor::Studio
