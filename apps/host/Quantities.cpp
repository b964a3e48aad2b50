#include "Quantities.h"

#include "Text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <numeric>

namespace Vexlor::Tool
{

namespace
{

using Pair = std::pair<int, int>;

template <typename Number>
std::optional<Number> Whole(std::string_view digits, int base = 10)
{
    Number number = 0;
    const auto* end = digits.data() + digits.size();
    const auto [stop, fault] = std::from_chars(digits.data(), end, number, base);
    return fault == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

/// A number in thousandths; more decimals are no number.
std::optional<std::int64_t> Thousandths(std::string_view digits)
{
    constexpr std::size_t kDecimals = 3;
    const auto point = digits.find('.');
    const auto decimals = point == std::string_view::npos ? std::string_view() : digits.substr(point + 1);
    const auto whole = Whole<std::int32_t>(digits.substr(0, point));
    const bool isShort = decimals.size() <= kDecimals && decimals.find_first_of("+-") == std::string::npos;
    if (!whole || *whole < 0 || !isShort || (point != std::string_view::npos && decimals.empty()))
        return {};
    std::string padded(decimals);
    padded.resize(kDecimals, '0');
    const auto fraction = Whole<std::int32_t>(padded);
    return fraction ? std::optional(std::int64_t{*whole} * 1000 + *fraction) : std::nullopt;
}

struct Unit
{
    std::string_view name;
    int factor;
};

/// The text's number times the factor of the unit behind it, the first of which is none.
template <typename Units>
std::optional<int> Measured(std::string_view text, const Units& units)
{
    const auto squeezed = Squeezed(text);
    const auto digits = squeezed.substr(0, squeezed.find_first_not_of("0123456789."));
    const auto number = Thousandths(digits);
    for (const Unit& unit : units)
    {
        if (!number || squeezed.substr(digits.size()) != unit.name)
            continue;
        const auto value = *number * unit.factor;
        const bool fits = value % 1000 == 0 && value / 1000 <= std::numeric_limits<int>::max();
        return fits ? std::optional(static_cast<int>(value / 1000)) : std::nullopt;
    }
    return {};
}

std::string WithoutEnding(std::string text, std::string_view ending)
{
    if (text.ends_with(ending))
        text.resize(text.size() - ending.size());
    return text;
}

std::optional<Pair> Fraction(std::string_view text)
{
    const auto slash = text.find('/');
    const auto num = Whole<int>(text.substr(0, slash));
    const auto den = slash == std::string_view::npos ? 1 : Whole<int>(text.substr(slash + 1));
    const bool isRate = num && den && *num > 0 && *den > 0;
    return isRate ? std::optional(Pair(*num, *den)) : std::nullopt;
}

} // namespace

std::optional<int> IntegerOf(std::string_view text) { return Whole<int>(Squeezed(text)); }

std::optional<Pair> SizeOf(std::string_view text)
{
    const auto squeezed = Squeezed(text);
    const auto times = squeezed.find('x');
    if (times == std::string::npos)
        return {};
    const auto width = Whole<int>(std::string_view(squeezed).substr(0, times));
    const auto height = Whole<int>(std::string_view(squeezed).substr(times + 1));
    const bool isSize = width && height && *width >= 0 && *height >= 0;
    return isSize ? std::optional(Pair(*width, *height)) : std::nullopt;
}

std::optional<Pair> FrameRateOf(std::string_view text)
{
    constexpr int kThousand = 1000;
    constexpr std::int64_t kNear = 6; // thousandths: 23.98 is 23.976
    constexpr std::int64_t kMost = 1'000'000'000;
    const auto digits = WithoutEnding(Squeezed(text), "fps");
    if (const auto fraction = Fraction(digits))
        return fraction;
    const auto rate = Thousandths(digits);
    if (!rate || *rate <= 0 || *rate > kMost)
        return {};
    const auto whole = (*rate + kThousand - 1) / kThousand;
    const auto television = whole * kThousand * kThousand / (kThousand + 1);
    if (*rate % kThousand != 0 && std::abs(television - *rate) < kNear)
        return Pair(static_cast<int>(whole) * kThousand, kThousand + 1);
    const auto common = std::gcd(*rate, std::int64_t{kThousand});
    return Pair(static_cast<int>(*rate / common), static_cast<int>(kThousand / common));
}

std::optional<int> SampleRateOf(std::string_view text)
{
    constexpr std::array kUnits{Unit{"", 1}, Unit{"hz", 1}, Unit{"khz", 1000}, Unit{"k", 1000}};
    return Measured(text, kUnits);
}

std::optional<int> BitrateOf(std::string_view text)
{
    constexpr int kMega = 1'000'000;
    constexpr std::array kUnits{Unit{"", 1},     Unit{"b/s", 1},      Unit{"kb/s", 1000},  Unit{"kbps", 1000},
                                Unit{"k", 1000}, Unit{"mb/s", kMega}, Unit{"mbps", kMega}, Unit{"m", kMega}};
    return Measured(text, kUnits);
}

std::optional<std::uint64_t> MaskOf(std::string_view text)
{
    constexpr int kHexadecimal = 16;
    const auto squeezed = Squeezed(text);
    return squeezed.starts_with("0x")
               ? Whole<std::uint64_t>(std::string_view(squeezed).substr(2), kHexadecimal)
               : std::nullopt;
}

} // namespace Vexlor::Tool
