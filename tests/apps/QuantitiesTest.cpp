#include "apps/host/Quantities.h"

#include <gtest/gtest.h>

namespace Vexlor::Tool
{

namespace
{

using Pair = std::pair<int, int>;

template <typename Value>
struct Row
{
    const char* text;
    std::optional<Value> value;
};

template <typename Value, std::size_t kCount>
void ExpectAll(const Row<Value> (&rows)[kCount], std::optional<Value> (*read)(std::string_view))
{
    for (const auto& row : rows)
        EXPECT_EQ(row.value, read(row.text)) << row.text;
}

TEST(Quantities, FrameRates)
{
    constexpr Row<Pair> kRows[] = {
        {"25", Pair(25, 1)},
        {"30000/1001", Pair(30000, 1001)},
        {"29.97", Pair(30000, 1001)},
        {"29.97 fps", Pair(30000, 1001)},
        {"23.976", Pair(24000, 1001)},
        {"23.98", Pair(24000, 1001)},
        {"59.94", Pair(60000, 1001)},
        {"12.5", Pair(25, 2)},
        {"30.0", Pair(30, 1)},
        {"0", {}},
        {"-25", {}},
        {"25/0", {}},
        {"", {}},
        {"25.", {}},
        {"1e3", {}},
        {"29.9700", {}},
        {"99999999999", {}},
        {"2147483647", Pair(2147483647, 1)},
        {"2147483.5", {}},
    };
    ExpectAll(kRows, FrameRateOf);
}

TEST(Quantities, Sizes)
{
    constexpr Row<Pair> kRows[] = {
        {"1280x720", Pair(1280, 720)},
        {"1280 X 720", Pair(1280, 720)},
        {"0x0", Pair(0, 0)},
        {"1280", {}},
        {"1280x", {}},
        {"-2x2", {}},
        {"1x2x3", {}},
        {"99999999999x1", {}},
    };
    ExpectAll(kRows, SizeOf);
}

TEST(Quantities, SampleRates)
{
    constexpr Row<int> kRows[] = {
        {"44100", 44100}, {"44.1 kHz", 44100}, {"48k", 48000},  {"8000 Hz", 8000}, {"11.025kHz", 11025},
        {"44.1", {}},     {"kHz", {}},         {"4 8k", 48000}, {"1 MHz", {}},
    };
    ExpectAll(kRows, SampleRateOf);
}

TEST(Quantities, Bitrates)
{
    constexpr Row<int> kRows[] = {
        {"8000000", 8'000'000},
        {"8M", 8'000'000},
        {"8.00 Mb/s", 8'000'000},
        {"1.5m", 1'500'000},
        {"192k", 192'000},
        {"127.9 kb/s", 127'900},
        {"64 kbps", 64'000},
        {"500 b/s", 500},
        {"0", 0},
        {"3000M", {}},
        {"-1", {}},
        {"8 MB", {}},
        {"0.5", {}},
        {"1.2345k", {}},
    };
    ExpectAll(kRows, BitrateOf);
}

TEST(Quantities, Masks)
{
    constexpr Row<std::uint64_t> kRows[] = {
        {"0x3", 3},
        {"0XFFFFFFFFFFFFFFFF", ~std::uint64_t{0}},
        {"0x", {}},
        {"3", {}},
        {"0x10000000000000000", {}},
        {"0x-1", {}},
    };
    ExpectAll(kRows, MaskOf);
}

} // namespace

} // namespace Vexlor::Tool
