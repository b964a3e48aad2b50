#include "IVXRational.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <clocale>
#include <cmath>
#include <locale>

namespace Vexlor
{

namespace
{

TEST(Rational, WithoutArgumentsIsInvalid)
{
    const auto none = IVXRational::MallocRational();
    EXPECT_FALSE(none->IsValid());
    EXPECT_EQ(0, none->Num());
    EXPECT_EQ(0, none->Den());
}

TEST(Rational, KeepsItsTermsUnreduced)
{
    const auto rate = IVXRational::MallocRational(60, 2);
    EXPECT_EQ(60, rate->Num());
    EXPECT_EQ(2, rate->Den());
    EXPECT_DOUBLE_EQ(30.0, rate->GetDoubleValue());
}

TEST(Rational, OverZeroIsInfiniteWithTheNumeratorsSign)
{
    EXPECT_EQ(HUGE_VAL, IVXRational::MallocRational(1, 0)->GetDoubleValue());
    EXPECT_EQ(-HUGE_VAL, IVXRational::MallocRational(-1, 0)->GetDoubleValue());
}

TEST(Rational, OfTwoZeroesIsNotANumber)
{
    EXPECT_TRUE(std::isnan(IVXRational::MallocRational(0, 0)->GetDoubleValue()));
}

TEST(Rational, DividesTheLargestTermsWithoutOverflow)
{
    EXPECT_DOUBLE_EQ(2147483648.0, IVXRational::MallocRational(INT_MIN, -1)->GetDoubleValue());
}

TEST(Rational, CloneIsAnotherObjectOfTheSameTerms)
{
    const auto rate = IVXRational::MallocRational(30000, 1001);
    const auto clone = rate->Clone();
    EXPECT_NE(rate, clone);
    EXPECT_EQ(30000, clone->Num());
    EXPECT_EQ(1001, clone->Den());
}

TEST(Rational, HasTheTermsThatWereAskedFor)
{
    for (const int den : {-1, 0, 1, 2, 1000, 1001})
        for (int num = -1001; num <= 130000; num += num < 130 ? 1 : 77)
        {
            const auto rate = IVXRational::MallocRational(num, den);
            ASSERT_EQ(num, rate->Num());
            ASSERT_EQ(den, rate->Den());
        }
}

TEST(Rational, OfAnNtscRateHasTheTermsThatWereAskedFor)
{
    for (int num = -2000; num <= 125000; num += 1000)
    {
        const auto rate = IVXRational::MallocRational(num, 1001);
        ASSERT_EQ(num, rate->Num());
        ASSERT_EQ(1001, rate->Den());
    }
}

TEST(Rational, ThatIsCommonIsSharedByAllWhoAskForIt)
{
    EXPECT_EQ(IVXRational::MallocRational(), IVXRational::MallocRational(0, 0));
    EXPECT_EQ(IVXRational::MallocRational(120, 1), IVXRational::MallocRational(120, 1));
    EXPECT_EQ(IVXRational::MallocRational(30000, 1001), IVXRational::MallocRational(30000, 1001));
}

struct RateText
{
    const char* name;
    int num;
    int den;
    const char* text;
};

class FramerateText : public testing::TestWithParam<RateText>
{
};

TEST_P(FramerateText, IsAsPeopleWriteIt)
{
    const auto& [name, num, den, text] = GetParam();
    EXPECT_EQ(text, IVXRational::MallocRational(num, den)->FormatAsFramerate());
}

constexpr auto kRateTexts = std::to_array<RateText>({
    {"Film", 24000, 1001, "23.976 fps"},
    {"Cinema", 24, 1, "24 fps"},
    {"Pal", 25, 1, "25 fps"},
    {"Ntsc", 30000, 1001, "29.97 fps"},
    {"Thirty", 30, 1, "30 fps"},
    {"ThirtyUnreduced", 60, 2, "30 fps"},
    {"NtscDoubled", 60000, 1001, "59.94 fps"},
    {"PalFilm", 25000, 1001, "24.98 fps"},
    {"Half", 25, 2, "12.5 fps"},
    {"Hundred", 100, 1, "100 fps"},
    {"NearlyNone", 1, 200, "0.01 fps"},
    {"Zero", 0, 1, ""},
    {"Negative", -30, 1, ""},
    {"NegativeByItsDenominator", 30, -1, ""},
    {"TwiceNegative", -30, -1, "30 fps"},
    {"Invalid", 0, 0, ""},
    {"Infinite", 1, 0, ""},
    {"Largest", INT_MAX, 1, "2147483647 fps"},
});
INSTANTIATE_TEST_SUITE_P(Rates, FramerateText, testing::ValuesIn(kRateTexts),
                         [](const auto& test) { return test.param.name; });

struct DecimalComma : std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
};

TEST(Rational, TextHasADecimalPointInEveryLocale)
{
    const std::locale german(std::locale::classic(), new DecimalComma); // the locale owns its facet
    const auto before = std::locale::global(german);
    std::setlocale(LC_NUMERIC, "de_DE.UTF-8"); // where it is installed, for C's functions, too
    const auto text = IVXRational::MallocRational(30000, 1001)->FormatAsFramerate();
    std::locale::global(before);
    EXPECT_EQ("29.97 fps", text);
}

} // namespace

} // namespace Vexlor
