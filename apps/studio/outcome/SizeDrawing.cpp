#include "SizeDrawing.h"

#include "DrawingColors.h"
#include "DrawingFocus.h"

#include <QPainter>
#include <QPainterPath>
#include <QResizeEvent>

#include <algorithm>
#include <cmath>

namespace Vexlor::Studio
{

namespace
{

constexpr int kLinesOfPicture = 8; // as high as it is at least
constexpr double kGap = 16;
constexpr double kMargin = 2;
constexpr int kCaption = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;

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

// A size stays on one line.
QString Unbroken(QString caption)
{
    constexpr QChar kNoBreak(QChar::Nbsp);
    return caption.replace(QStringLiteral(" x "), kNoBreak + QStringLiteral("x") + kNoBreak);
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

QRectF SizeDrawing::Area(double height) const
{
    return {kMargin, kMargin, std::max(0.0, width() - 2 * kMargin), height};
}

/// As high as the pictures become in that width.
double SizeDrawing::PictureHeight() const
{
    const auto area = Area(kLinesOfPicture * fontMetrics().lineSpacing());
    const auto drawn = LayOutSizes(m_facts, area, kGap);
    const auto all = drawn.source.united(drawn.output).united(drawn.picture).united(drawn.most);
    return all.isEmpty() ? area.height() : std::min(area.height(), all.height());
}

SizeGeometry SizeDrawing::Geometry() const { return LayOutSizes(m_facts, Area(PictureHeight()), kGap); }

std::pair<QRectF, QRectF> SizeDrawing::Halves() const
{
    const double top = kMargin + PictureHeight() + kGap / 2;
    const QRectF captions(kMargin, top, width() - 2 * kMargin, std::max(0.0, height() - top));
    return HalvesOf(captions, kGap, !m_words.source.isEmpty() && !m_words.output.isEmpty());
}

QFont SizeDrawing::FontOf(int line) const
{
    auto used = font();
    used.setBold(line == 0);
    return used;
}

double SizeDrawing::LineHeight(int line, const QString& text, double width) const
{
    constexpr double kHighest = 10'000;
    const QRectF wide(0, 0, std::max(width, 1.0), kHighest);
    return QFontMetricsF(FontOf(line)).boundingRect(wide, kCaption, Unbroken(text)).height();
}

double SizeDrawing::CaptionHeight(const QStringList& lines, double width) const
{
    double sum = 0;
    for (int i = 0; i < lines.size(); ++i)
        sum += LineHeight(i, lines[i], width);
    return sum;
}

QSize SizeDrawing::sizeHint() const
{
    const auto halves = Halves();
    const double captions = std::max(CaptionHeight(m_words.source, halves.first.width()),
                                     CaptionHeight(m_words.output, halves.second.width()));
    return {fontMetrics().averageCharWidth() * 50, int(std::ceil(PictureHeight() + captions + kGap))};
}

QSize SizeDrawing::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 24, sizeHint().height()};
}

void SizeDrawing::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (event->oldSize().width() != width())
        updateGeometry();
}

void SizeDrawing::DrawCaption(QPainter& painter, const QStringList& lines, const QRectF& half) const
{
    const auto colors = DrawingColors::Of(palette());
    double top = half.top();
    for (int i = 0; i < lines.size(); ++i)
    {
        const double step = LineHeight(i, lines[i], half.width());
        painter.setFont(FontOf(i));
        painter.setPen(i < 2 ? colors.text : colors.faint);
        painter.drawText(QRectF(half.left(), top, half.width(), step), kCaption, Unbroken(lines[i]));
        top += step;
    }
}

void SizeDrawing::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const auto geometry = Geometry();
    const auto colors = DrawingColors::Of(palette());
    if (!geometry.source.isEmpty())
        DrawSource(painter, geometry, colors);
    DrawBound(painter, geometry.most, colors, Qt::DashLine);
    DrawBound(painter, geometry.least, colors, Qt::DotLine);
    if (!geometry.output.isEmpty())
        DrawOutput(painter, geometry, colors, m_facts.isStretched);
    const auto halves = Halves();
    DrawCaption(painter, m_words.source, halves.first);
    DrawCaption(painter, m_words.output, halves.second);
    DrawFocus(*this, painter);
}

} // namespace Vexlor::Studio
