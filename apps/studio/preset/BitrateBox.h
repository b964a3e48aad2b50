#pragma once

#include <QSpinBox>

namespace Vexlor::Studio
{

/// A bitrate in bits per second, typed and shown in kb/s or Mb/s: "192 kb/s", "8M". A number alone is one of
/// the box's own unit. Where the box has a minimum of -1, that is none.
class BitrateBox final : public QSpinBox
{
    Q_OBJECT

public:
    /// What a number alone is.
    enum class Unit
    {
        Kilo,
        Mega,
    };

    explicit BitrateBox(Unit unit, QWidget* parent = nullptr);

    void stepBy(int steps) override;

protected:
    QString textFromValue(int value) const override;
    int valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& position) const override;
    void fixup(QString& text) const override;

private:
    std::optional<int> ValueOf(const QString& text) const;
    static QString NoneText() { return tr("None"); }

    Unit m_unit;
};

} // namespace Vexlor::Studio
