#include "tests/encode/Pairwise.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace Vexlor
{

namespace
{

constexpr int kOpen = -1;

/// The pairs of values that have not met yet. All values of all factors are numbered in one row.
class OpenPairs
{
public:
    explicit OpenPairs(const std::vector<int>& counts)
        : m_first(counts.size() + 1), m_open(Square(counts), true)
    {
        std::partial_sum(counts.begin(), counts.end(), m_first.begin() + 1);
    }

    bool IsOpen(std::size_t factor, int value, std::size_t other, int otherValue) const
    {
        return factor != other && m_open[Index(factor, value, other, otherValue)];
    }

    /// How many open pairs the value would close in a case that is filled in part.
    int Gain(std::size_t factor, int value, const PairwiseCase& part) const
    {
        int gain = 0;
        for (std::size_t other = 0; other < part.size(); ++other)
            if (part[other] != kOpen && IsOpen(factor, value, other, part[other]))
                ++gain;
        return gain;
    }

    void Close(const PairwiseCase& whole)
    {
        for (std::size_t factor = 0; factor < whole.size(); ++factor)
            for (std::size_t other = 0; other < whole.size(); ++other)
                m_open[Index(factor, whole[factor], other, whole[other])] = false;
    }

private:
    static std::size_t Square(const std::vector<int>& counts)
    {
        const auto all = static_cast<std::size_t>(std::reduce(counts.begin(), counts.end()));
        return all * all;
    }

    std::size_t Index(std::size_t factor, int value, std::size_t other, int otherValue) const
    {
        return static_cast<std::size_t>((m_first[factor] + value) * m_first.back() + m_first[other] +
                                        otherValue);
    }

    std::vector<int> m_first; // of each factor's values, and one past them all
    std::vector<bool> m_open;
};

int BestValue(const OpenPairs& pairs, std::size_t factor, int count, const PairwiseCase& part, int first)
{
    int best = first % count;
    for (int step = 1; step < count; ++step)
    {
        const int value = (first + step) % count;
        if (pairs.Gain(factor, value, part) > pairs.Gain(factor, best, part))
            best = value;
    }
    return best;
}

// Where several values are as good, the next case begins with another one, so that all are used alike.
PairwiseCase Completed(const OpenPairs& pairs, const std::vector<int>& counts, PairwiseCase part, int turn)
{
    for (std::size_t factor = 0; factor < counts.size(); ++factor)
        if (part[factor] == kOpen)
            part[factor] = BestValue(pairs, factor, counts[factor], part, turn);
    return part;
}

/// Calls use with every pair of values of two factors, in order.
template <class Use>
void ForEachPair(const std::vector<int>& counts, Use use)
{
    for (std::size_t factor = 0; factor < counts.size(); ++factor)
        for (std::size_t other = factor + 1; other < counts.size(); ++other)
            for (int value = 0; value < counts[factor]; ++value)
                for (int otherValue = 0; otherValue < counts[other]; ++otherValue)
                    use(factor, value, other, otherValue);
}

std::vector<PairwiseCase> EachAlone(int count)
{
    std::vector<PairwiseCase> cases;
    for (int value = 0; value < count; ++value)
        cases.push_back({value});
    return cases;
}

} // namespace

std::vector<PairwiseCase> PairwiseCases(const std::vector<int>& counts)
{
    if (std::ranges::any_of(counts, [](int count) { return count < 1; }))
        return {};
    if (counts.size() == 1)
        return EachAlone(counts.front());
    OpenPairs pairs(counts);
    std::vector<PairwiseCase> cases;
    ForEachPair(counts,
                [&](std::size_t factor, int value, std::size_t other, int otherValue)
                {
                    if (!pairs.IsOpen(factor, value, other, otherValue))
                        return;
                    PairwiseCase part(counts.size(), kOpen);
                    part[factor] = value;
                    part[other] = otherValue;
                    cases.push_back(Completed(pairs, counts, part, static_cast<int>(cases.size())));
                    pairs.Close(cases.back());
                });
    return cases;
}

} // namespace Vexlor
