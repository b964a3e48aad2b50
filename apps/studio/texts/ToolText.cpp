#include "ToolText.h"

#include "ToolPatterns.h"
#include "apps/studio/ShownText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace Vexlor::Studio
{

namespace
{

constexpr auto* kContext = "Vexlor::Studio::ToolText";
constexpr auto* kGradeContext = "Vexlor::Studio::GradeText";
[[maybe_unused]] constexpr std::array kGrades{
    QT_TRANSLATE_NOOP("Vexlor::Studio::GradeText", "Auto"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::GradeText", "Low"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::GradeText", "Normal"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::GradeText", "High"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::GradeText", "Best"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::GradeText", "Custom"),
};
[[maybe_unused]] constexpr std::array kUnits{
    QT_TRANSLATE_NOOP("Vexlor::Studio::ToolText", "b/s"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::ToolText", "kb/s"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::ToolText", "Mb/s"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::ToolText", "fps"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::ToolText", "bytes"),
};

const QRegularExpression& PlaceInPattern()
{
    static const QRegularExpression s_place(QStringLiteral("%([1-9])"));
    return s_place;
}

/// A pattern as it is compared: what stands before, between and behind the things that are told in it.
struct Pieces
{
    explicit Pieces(const ToolPattern& toolPattern)
        : pattern(toolPattern), fixed(QString::fromUtf8(toolPattern.text).split(PlaceInPattern()))
    {
        for (const auto& piece : fixed)
            length += piece.size();
    }

    /// The things that are told, if the text is of this pattern.
    std::optional<QStringList> ThingsIn(const QString& text) const
    {
        if (fixed.size() == 1)
            return text == fixed.front() ? std::optional(QStringList()) : std::nullopt;
        if (!text.startsWith(fixed.front()) || !text.endsWith(fixed.back()))
            return {};
        QStringList things;
        auto begin = fixed.front().size();
        for (qsizetype i = 1; i < fixed.size(); ++i)
        {
            const bool isLast = i + 1 == fixed.size();
            const auto end = isLast ? text.size() - fixed[i].size() : text.indexOf(fixed[i], begin + 1);
            if (end <= begin)
                return {};
            things.append(text.mid(begin, end - begin));
            begin = end + fixed[i].size();
        }
        return things;
    }

    ToolPattern pattern;
    QStringList fixed;
    qsizetype length = 0;
};

/// All patterns: those first that say the most themselves.
const std::vector<Pieces>& AllPieces()
{
    static const auto s_all = []
    {
        std::vector<Pieces> all;
        for (const auto& patterns : ToolPatterns())
            for (const auto& pattern : patterns)
                all.emplace_back(pattern);
        std::ranges::stable_sort(all, std::ranges::greater(), &Pieces::length);
        return all;
    }();
    return s_all;
}

std::optional<QString> Translated(const QString& text);

/// A long one is a list of names or what another program says; how deep it is nested is its matter.
QString ThingText(const QString& thing)
{
    constexpr qsizetype kLongest = 1000;
    return thing.size() > kLongest ? thing : Translated(thing).value_or(thing);
}

QString Filled(const ToolPattern& pattern, const QStringList& things)
{
    const auto text = QCoreApplication::translate(kContext, pattern.text);
    QString filled;
    qsizetype begin = 0;
    for (auto places = PlaceInPattern().globalMatch(text); places.hasNext();)
    {
        const auto place = places.next();
        const auto number = place.captured(1).toInt();
        const auto thing = things.value(number - 1);
        filled += text.mid(begin, place.capturedStart() - begin);
        filled += number == pattern.grade ? GradeText(thing.toStdString()) : ThingText(thing);
        begin = place.capturedEnd();
    }
    return filled + text.mid(begin);
}

/// "8.00 Mb/s" with the decimal point and the unit of the window's language.
std::optional<QString> Quantity(const QString& text)
{
    static const QRegularExpression s_quantity(
        QStringLiteral("^(\\d+)(?:\\.(\\d+))? (b/s|kb/s|Mb/s|fps|Hz|kHz|bytes|kB|MB|GB)$"));
    const auto match = s_quantity.match(text);
    if (!match.hasMatch())
        return {};
    const auto decimals = match.captured(2);
    return match.captured(1) + (decimals.isEmpty() ? QString() : QLocale().decimalPoint() + decimals) +
           QLatin1Char(' ') + UnitText(match.captured(3).toUtf8().constData());
}

/// What stands between quotation marks is somebody's name.
bool IsQuoted(const QString& text)
{
    return text.size() > 1 && text.startsWith(QLatin1Char('"')) &&
           text.indexOf(QLatin1Char('"'), 1) == text.size() - 1;
}

/// A text that is a pattern's as a whole.
std::optional<QString> OfPattern(const QString& text)
{
    if (IsQuoted(text))
        return {};
    if (auto quantity = Quantity(text))
        return quantity;
    for (const auto& pieces : AllPieces())
        if (const auto things = pieces.ThingsIn(text))
            return Filled(pieces.pattern, *things);
    return {};
}

/// "file: reason", the file as it is.
std::optional<QString> BehindName(const QString& text)
{
    static const QString s_colon(QStringLiteral(": "));
    for (auto end = text.indexOf(s_colon); end >= 0; end = text.indexOf(s_colon, end + 1))
        if (const auto reason = OfPattern(text.mid(end + s_colon.size())))
            return text.left(end + s_colon.size()) + *reason;
    return {};
}

std::optional<QString> Translated(const QString& text)
{
    auto whole = OfPattern(text);
    return whole ? whole : BehindName(text);
}

} // namespace

QString ToolText(std::string_view text)
{
    const auto shown = ShownText(text);
    return Translated(shown).value_or(shown);
}

QString GradeText(std::string_view name)
{
    return QCoreApplication::translate(kGradeContext, std::string(name).c_str());
}

QString UnitText(const char* name) { return QCoreApplication::translate(kContext, name); }

std::string TypedText(const QString& text)
{
    static const QRegularExpression s_decimal(QStringLiteral("(?<=\\d),(?=\\d)"));
    static const QRegularExpression s_bits(QStringLiteral("bit/s\\b"),
                                           QRegularExpression::CaseInsensitiveOption);
    auto typed = text;
    if (QLocale().decimalPoint() == QLatin1String(","))
        typed.replace(s_decimal, QStringLiteral("."));
    return typed.replace(s_bits, QStringLiteral("b/s")).toStdString();
}

} // namespace Vexlor::Studio
