#pragma once

#include "BitrateGeometry.h"

#include <QString>
#include <QStringList>
#include <QWidget>

#include <vector>

namespace Vexlor::Studio
{

/// Draws a stream's bitrate as a bar between its bounds, with the four grades beneath it and the source's
/// above.
class BitrateBar final : public QWidget
{
    Q_OBJECT

public:
    /// The title says whose bitrate it is.
    explicit BitrateBar(const QString& title, QWidget* parent = nullptr);

    /// Draws those bitrates, and describes them in words for those who cannot see it.
    void SetFacts(const BitrateFacts& facts);
    /// Where they are drawn now.
    BitrateGeometry Geometry() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// A text of one or more lines, centred at its place as far as there is room.
    struct Label
    {
        double place;
        QStringList lines;
    };

    double BarTop() const;
    double LabelTop(int line) const;
    double LabelWidth(const Label& label) const;
    std::vector<Label> GradeLabels(const BitrateGeometry& geometry) const;
    std::vector<Label> BoundLabels(const BitrateGeometry& geometry) const;
    void DrawTitle(QPainter& painter) const;
    void DrawSource(QPainter& painter, const BitrateGeometry& geometry) const;
    void DrawBar(QPainter& painter, const BitrateGeometry& geometry) const;
    void DrawMarks(QPainter& painter, const BitrateGeometry& geometry) const;
    void DrawLabels(QPainter& painter, const std::vector<Label>& labels, double top, bool isFaint) const;

    QString m_title;
    BitrateFacts m_facts;
};

} // namespace Vexlor::Studio
