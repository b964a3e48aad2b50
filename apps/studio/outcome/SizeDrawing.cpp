#include "SizeDrawing.h"

#include "DrawingColors.h"
#include "DrawingFocus.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

constexpr int kLinesOfPicture = 8; // as high as it is at least
constexpr double kGap = 16;
constexpr double kMargin = 2;

QPen Line(const QColor& color, Qt::PenStyle style = Qt::SolidLine)
{
    QPen pen(color, 1.5, style);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

/// What lies in one rectangle alone.
QPainterPath Between(const QRectF& one, const QRectF& other)
{
    QPainterPath first;
    first.addRect(one);
    QPainterPath second;
    second.addRect(other);
    return first.subtracted(second).united(second.subtracted(first));
}

void DrawSource(QPainter& painter, const SizeGeometry& geometry, const DrawingColors& colors)
{
    painter.setPen(Line(colors.line));
    painter.setBrush(colors.paper);
    painter.drawRect(geometry.source);
}

void DrawOutput(QPainter& painter, const SizeGeometry& geometry, const DrawingColors& colors,
                bool isStretched)
{
    auto picture = colors.output;
    picture.setAlphaF(0.35F);
    painter.fillRect(geometry.picture.intersected(geometry.output), picture);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(colors.hatch, isStretched ? Qt::DiagCrossPattern : Qt::BDiagPattern));
    if (isStretched)
        painter.drawRect(geometry.output);
    else if (!geometry.picture.isEmpty())
        painter.drawPath(Between(geometry.output, geometry.picture));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Line(colors.output));
    painter.drawRect(geometry.output);
}

void DrawBound(QPainter& painter, const QRectF& bound, const DrawingColors& colors, Qt::PenStyle style)
{
    painter.setPen(Line(colors.line, style));
    painter.setBrush(Qt::NoBrush);
    if (!bound.isEmpty())
        painter.drawRect(bound);
}

} // namespace

SizeDrawing::SizeDrawing(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("sizeDrawing"));
    setAccessibleName(tr("Sizes to scale"));
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SizeDrawing::SetFacts(const SizeFacts& facts)
{
    if (facts == m_facts)
        return;
    m_facts = facts;
    m_words = SizeWordsOf(facts);
    setAccessibleDescription(m_words.description);
    setToolTip(m_words.description);
    updateGeometry();
    update();
}

int SizeDrawing::CaptionLines() const
{
    return static_cast<int>(std::max(m_words.source.size(), m_words.output.size()));
}

QRectF SizeDrawing::Area() const
{
    const double captions = CaptionLines() * fontMetrics().lineSpacing() + kGap / 2;
    return QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin - captions);
}

SizeGeometry SizeDrawing::Geometry() const { return LayOutSizes(m_facts, Area(), kGap); }

QSize SizeDrawing::sizeHint() const
{
    const int height = (kLinesOfPicture + CaptionLines()) * fontMetrics().lineSpacing();
    return {fontMetrics().averageCharWidth() * 50, height + int(kGap)};
}

QSize SizeDrawing::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 24, sizeHint().height()};
}

QFont SizeDrawing::TitleFont() const
{
    auto title = font();
    title.setBold(true);
    return title;
}

void SizeDrawing::DrawCaption(QPainter& painter, const QStringList& lines, const QRectF& half) const
{
    const int step = fontMetrics().lineSpacing();
    const auto colors = DrawingColors::Of(palette());
    QRectF line(half.left(), Area().bottom() + kGap / 2, half.width(), step);
    for (int i = 0; i < lines.size(); ++i, line.translate(0, step))
    {
        const bool isTitle = i == 0;
        const auto used = isTitle ? TitleFont() : font();
        painter.setFont(used);
        painter.setPen(i < 2 ? colors.text : colors.faint);
        painter.drawText(line, Qt::AlignHCenter | Qt::AlignVCenter,
                         QFontMetrics(used).elidedText(lines[i], Qt::ElideRight, int(line.width())));
    }
}

void SizeDrawing::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const auto geometry = Geometry();
    const auto colors = DrawingColors::Of(palette());
    if (!geometry.source.isEmpty())
        DrawSource(painter, geometry, colors);
    if (!geometry.output.isEmpty())
        DrawOutput(painter, geometry, colors, m_facts.isStretched);
    DrawBound(painter, geometry.most, colors, Qt::DashLine);
    DrawBound(painter, geometry.least, colors, Qt::DotLine);
    const QRectF whole(kMargin, 0, width() - 2 * kMargin, height());
    const auto halves = HalvesOf(whole, kGap, !m_words.source.isEmpty() && !m_words.output.isEmpty());
    DrawCaption(painter, m_words.source, halves.first);
    DrawCaption(painter, m_words.output, halves.second);
    DrawFocus(*this, painter);
}

} // namespace Vexlor::Studio
