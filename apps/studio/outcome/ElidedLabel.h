#pragma once

#include <QLabel>

namespace Vexlor::Studio
{

/// One line of text that is cut in its middle where there is no room for all of it.
class ElidedLabel final : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    /// Shows that text; the whole of it is in the tool tip and for screen readers.
    void SetWholeText(const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Cut();

    QString m_whole;
};

} // namespace Vexlor::Studio
