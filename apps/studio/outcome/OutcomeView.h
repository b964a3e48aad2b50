#pragma once

#include <QTableView>

namespace Vexlor::Studio
{

class OutcomeModel;
class ReasonDelegate;

/// The table of a source beside its output, as high as its rows, so that what it stands in scrolls. Where it
/// is narrow, the reasons stand beneath the values.
class OutcomeView final : public QTableView
{
    Q_OBJECT

public:
    explicit OutcomeView(OutcomeModel& model, QWidget* parent = nullptr);

    /// The selected rows, or all of them, a line each with tabs in between.
    QString Text() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// Another row is the current one, which is to be seen.
    void CurrentMoved(const QRect& row);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void AddActions();
    void Copy() const;
    void Arrange();
    void SpanHeadings();
    void FitRows();
    void ShowSourceAlone(int width);
    void PutReasonsBelow(int width);
    int WantedWidth(int column) const;
    int HeightOfRows() const;

    OutcomeModel& m_model;
    ReasonDelegate* m_reasons;
};

} // namespace Vexlor::Studio
