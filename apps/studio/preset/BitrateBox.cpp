#include "BitrateBox.h"

#include "apps/host/Quantities.h"
#include "apps/studio/texts/ToolText.h"

#include <QLocale>
#include <QRegularExpression>

namespace Vexlor::Studio
{

namespace
{

constexpr int kNone = -1;
constexpr int kKilo = 1'000;
constexpr int kMega = 1'000'000;
constexpr int kMost = 2'000'000'000;
constexpr int kFirstKilo = 64 * kKilo; // where stepping up from none begins

QString Scaled(int value, int unit, const char* name)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const double scaled = static_cast<double>(value) / unit;
    return locale.toString(scaled, 'f', QLocale::FloatingPointShortest) + QLatin1Char(' ') + UnitText(name);
}

} // namespace

BitrateBox::BitrateBox(Unit unit, QWidget* parent) : QSpinBox(parent), m_unit(unit)
{
    setRange(kNone, kMost);
    setAlignment(Qt::AlignRight);
    setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
}

void BitrateBox::stepBy(int steps)
{
    const bool isMega = m_unit == Unit::Mega;
    if (steps > 0 && value() < kKilo)
        setValue(isMega ? kMega : kFirstKilo);
    else if (steps < 0 && value() <= kKilo)
        setValue(minimum());
    else
        QSpinBox::stepBy(steps);
}

// What is shown is exact, so that reading it back changes nothing.
QString BitrateBox::textFromValue(int value) const
{
    if (value == kNone)
        return NoneText();
    const bool isMega = m_unit == Unit::Mega && value >= kMega && value % kKilo == 0;
    return isMega ? Scaled(value, kMega, "Mb/s") : Scaled(value, kKilo, "kb/s");
}

int BitrateBox::valueFromText(const QString& text) const { return ValueOf(text).value_or(value()); }

QValidator::State BitrateBox::validate(QString& text, int&) const
{
    const auto value = ValueOf(text);
    if (value && *value >= minimum() && *value <= maximum())
        return QValidator::Acceptable;
    static const QRegularExpression s_begun(
        QStringLiteral("^\\s*\\d*[.,]?\\d*\\s*[km]?(b|bi|bit|bit/|b/|(bit|b)/s|bp|bps)?\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    const bool isBegun =
        s_begun.match(text).hasMatch() || NoneText().startsWith(text.trimmed(), Qt::CaseInsensitive);
    return isBegun ? QValidator::Intermediate : QValidator::Invalid;
}

void BitrateBox::fixup(QString& text) const
{
    if (text.trimmed().isEmpty() && minimum() <= kNone)
        text = NoneText();
}

std::optional<int> BitrateBox::ValueOf(const QString& text) const
{
    auto typed = text.trimmed();
    if (typed.compare(NoneText(), Qt::CaseInsensitive) == 0)
        return kNone;
    typed.replace(QLocale().decimalPoint(), QLatin1String("."));
    const bool isBare = !typed.isEmpty() && (typed.back().isDigit() || typed.endsWith(QLatin1Char('.')));
    if (isBare)
        typed += m_unit == Unit::Mega ? QLatin1String("M") : QLatin1String("k");
    return Tool::BitrateOf(TypedText(typed));
}

} // namespace Vexlor::Studio
