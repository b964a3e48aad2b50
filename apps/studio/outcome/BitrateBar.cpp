#include "BitrateBar.h"

#include "BitrateWords.h"
#include "DrawingColors.h"
#include "DrawingFocus.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

constexpr double kMargin = 4;
constexpr double kThickness = 0.6; // of a line of text
constexpr double kTick = 0.3;      // as above
constexpr double kStroke = 1.5;
constexpr int kLabelLines = 3; // grades, their bitrates, bounds

} // namespace

BitrateBar::BitrateBar(const QString& title, QWidget* parent) : QWidget(parent), m_title(title)
{
    setAccessibleName(title);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void BitrateBar::SetFacts(const BitrateFacts& facts)
{
    if (facts == m_facts)
        return;
    m_facts = facts;
    const auto words = BitrateDescription(facts);
    setAccessibleDescription(words);
    setToolTip(words);
    update();
}

QSize BitrateBar::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 50, int(LabelTop(kLabelLines) + kMargin)};
}

QSize BitrateBar::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 24, sizeHint().height()};
}

/// Below the title, the source's label and its arrow.
double BitrateBar::BarTop() const { return kMargin + (2 + kTick) * fontMetrics().lineSpacing(); }

double BitrateBar::LabelTop(int line) const
{
    return BarTop() + (kThickness + kTick + line) * fontMetrics().lineSpacing();
}

BitrateGeometry BitrateBar::Geometry() const
{
    const double thickness = kThickness * fontMetrics().lineSpacing();
    const double left = kMargin + kTick * fontMetrics().lineSpacing(); // where the source's arrow begins
    return LayOutBitrates(m_facts, {left, BarTop(), width() - 2 * left, thickness});
}

double BitrateBar::LabelWidth(const Label& label) const
{
    int width = 0;
    for (const auto& line : label.lines)
        width = std::max(width, fontMetrics().horizontalAdvance(line));
    return width;
}

/// The grades with their bitrates, or alone where there is no room for those.
std::vector<BitrateBar::Label> BitrateBar::GradeLabels(const BitrateGeometry& geometry) const
{
    const auto marks = MarksOf(m_facts);
    std::vector<Label> labels;
    double width = 0;
    for (std::size_t i = 0; i < marks.size(); ++i)
    {
        labels.push_back({geometry.marks[i], {GradeText(marks[i]), BitrateShown(marks[i].bitrate)}});
        width += LabelWidth(labels.back()) + fontMetrics().averageCharWidth();
    }
    if (width > geometry.line.width())
        for (auto& label : labels)
            label.lines.removeLast();
    return labels;
}

/// Whose the bounds are is told where there is room.
std::vector<BitrateBar::Label> BitrateBar::BoundLabels(const BitrateGeometry& geometry) const
{
    if (geometry.bar.isEmpty())
        return {};
    const auto labels = [&](const QString& least, const QString& most)
    {
        return std::vector<Label>{{geometry.bar.left(), {least.arg(BitrateShown(m_facts.least))}},
                                  {geometry.bar.right(), {most.arg(BitrateShown(m_facts.most))}}};
    };
    const auto whole = labels(m_facts.isLeastOfPreset ? tr("from %1 (preset)") : tr("from %1 (codec)"),
                              m_facts.isMostOfPreset ? tr("to %1 (preset)") : tr("to %1 (codec)"));
    const double width =
        LabelWidth(whole.front()) + LabelWidth(whole.back()) + fontMetrics().averageCharWidth();
    return width <= geometry.line.width() ? whole : labels(tr("from %1"), tr("to %1"));
}

void BitrateBar::DrawLabels(QPainter& painter, const std::vector<Label>& labels, double top,
                            bool isFaint) const
{
    std::vector<double> places;
    std::vector<double> widths;
    for (const auto& label : labels)
    {
        places.push_back(label.place);
        widths.push_back(LabelWidth(label));
    }
    const auto colors = DrawingColors::Of(palette());
    const auto edges =
        SpreadLabels(places, widths, kMargin, width() - kMargin, fontMetrics().averageCharWidth());
    for (std::size_t i = 0; i < labels.size(); ++i)
    {
        QRectF line(edges[i] - 1, top, widths[i] + 2, fontMetrics().lineSpacing());
        for (int j = 0; j < labels[i].lines.size(); ++j, line.translate(0, line.height()))
        {
            painter.setPen(isFaint || j > 0 ? colors.faint : colors.text);
            painter.drawText(line, Qt::AlignCenter, labels[i].lines[j]);
        }
    }
}

void BitrateBar::DrawTitle(QPainter& painter) const
{
    auto strong = font();
    strong.setBold(true);
    painter.setFont(strong);
    painter.setPen(DrawingColors::Of(palette()).text);
    const QRectF line(kMargin, kMargin, width() - 2 * kMargin, fontMetrics().lineSpacing());
    painter.drawText(line, Qt::AlignLeft, m_title);
    painter.drawText(line, Qt::AlignRight, BitrateShown(m_facts.output));
    painter.setFont(font());
}

void BitrateBar::DrawSource(QPainter& painter, const BitrateGeometry& geometry) const
{
    if (m_facts.source < 1)
        return;
    const double size = kTick * fontMetrics().lineSpacing();
    const QPointF tip(geometry.source, geometry.line.top());
    DrawLabels(painter, {{geometry.source, {tr("source %1").arg(BitrateShown(m_facts.source))}}},
               kMargin + fontMetrics().lineSpacing(), true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(DrawingColors::Of(palette()).line);
    painter.drawPolygon(QPolygonF{tip, tip - QPointF(size, size), tip + QPointF(size, -size)});
}

void BitrateBar::DrawBar(QPainter& painter, const BitrateGeometry& geometry) const
{
    const auto colors = DrawingColors::Of(palette());
    const auto middle = geometry.line.center().y();
    painter.setPen(QPen(colors.line, kStroke));
    painter.drawLine(QPointF(geometry.line.left(), middle), QPointF(geometry.line.right(), middle));
    if (!geometry.bar.isEmpty())
    {
        painter.setBrush(colors.paper);
        painter.drawRect(geometry.bar);
        painter.fillRect(geometry.filled, colors.output);
    }
    QRectF handle(0, 0, 2 * kStroke, geometry.line.height() + 2 * kStroke);
    handle.moveCenter({geometry.output, middle});
    painter.fillRect(handle, colors.text);
}

void BitrateBar::DrawMarks(QPainter& painter, const BitrateGeometry& geometry) const
{
    painter.setPen(QPen(DrawingColors::Of(palette()).line, kStroke));
    const double top = geometry.line.bottom();
    for (const double mark : geometry.marks)
        painter.drawLine(QPointF(mark, top), QPointF(mark, LabelTop(0)));
}

void BitrateBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto geometry = Geometry();
    DrawTitle(painter);
    DrawSource(painter, geometry);
    DrawBar(painter, geometry);
    DrawMarks(painter, geometry);
    const auto grades = GradeLabels(geometry);
    const auto lines = grades.empty() ? 0 : static_cast<int>(grades.front().lines.size());
    DrawLabels(painter, grades, LabelTop(0), false);
    DrawLabels(painter, BoundLabels(geometry), LabelTop(lines), true);
    DrawFocus(*this, painter);
}

} // namespace Vexlor::Studio
