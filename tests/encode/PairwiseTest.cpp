#include "tests/encode/Pairwise.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <tuple>

namespace Vexlor
{

namespace
{

using Pair = std::tuple<std::size_t, int, std::size_t, int>;

std::set<Pair> PairsOf(const std::vector<PairwiseCase>& cases)
{
    std::set<Pair> pairs;
    for (const auto& each : cases)
        for (std::size_t factor = 0; factor < each.size(); ++factor)
            for (std::size_t other = factor + 1; other < each.size(); ++other)
                pairs.insert({factor, each[factor], other, each[other]});
    return pairs;
}

std::size_t PairsOfCounts(const std::vector<int>& counts)
{
    std::size_t pairs = 0;
    for (std::size_t factor = 0; factor < counts.size(); ++factor)
        for (std::size_t other = factor + 1; other < counts.size(); ++other)
            pairs += static_cast<std::size_t>(counts[factor]) * static_cast<std::size_t>(counts[other]);
    return pairs;
}

struct CountsCase
{
    const char* name;
    std::vector<int> counts;
    std::size_t most; // cases: a little above the product of the two largest counts, which is the least
};

const std::vector<CountsCase> kCounts{
    {"TwoFactors", {3, 2}, 6},
    {"FourFactorsOfThree", {3, 3, 3, 3}, 13},
    {"OneValueEach", {1, 1, 1}, 1},
    {"VideoCodec", {26, 14, 8, 7, 21, 5}, 26 * 21 + 60},
    {"AudioCodec", {13, 8, 3, 2, 5}, 13 * 8 + 15},
};

class Pairwise : public testing::TestWithParam<CountsCase>
{
protected:
    const std::vector<int>& Counts() const { return GetParam().counts; }
    const std::vector<PairwiseCase> cases = PairwiseCases(GetParam().counts);
};

TEST_P(Pairwise, EveryPairOfValuesMeets) { EXPECT_EQ(PairsOfCounts(Counts()), PairsOf(cases).size()); }

TEST_P(Pairwise, EveryIndexIsThatOfAValue)
{
    for (const auto& each : cases)
        EXPECT_TRUE(std::ranges::equal(each, Counts(),
                                       [](int index, int count) { return index >= 0 && index < count; }));
}

TEST_P(Pairwise, CasesAreFew) { EXPECT_LE(cases.size(), GetParam().most); }

TEST_P(Pairwise, SameCountsGiveTheSameCases) { EXPECT_EQ(cases, PairwiseCases(Counts())); }

INSTANTIATE_TEST_SUITE_P(Counts, Pairwise, testing::ValuesIn(kCounts),
                         [](const auto& test) { return test.param.name; });

TEST(PairwiseCases, OneFactorGivesEachOfItsValues)
{
    EXPECT_EQ((std::vector<PairwiseCase>{{0}, {1}, {2}}), PairwiseCases({3}));
}

TEST(PairwiseCases, FactorWithoutValuesGivesNone) { EXPECT_TRUE(PairwiseCases({3, 0, 2}).empty()); }

TEST(PairwiseCases, NoFactorGivesNone) { EXPECT_TRUE(PairwiseCases({}).empty()); }

} // namespace

} // namespace Vexlor
