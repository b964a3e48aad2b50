#include "IVXData.h"

#include <gmock/gmock.h>

#include <limits>
#include <span>
#include <stdexcept>
#include <string_view>

namespace Vexlor
{

namespace
{

std::string_view Text(const IVXData& data)
{
    return {reinterpret_cast<const char*>(data.Bytes()), data.Size()};
}

std::shared_ptr<IVXData> Holding(std::string_view text)
{
    auto data = IVXData::MallocData(0);
    data->AppendBytes(text.data(), static_cast<std::uint32_t>(text.size()));
    return data;
}

} // namespace

TEST(Data, ANewBufferHoldsZeroBytes)
{
    const auto data = IVXData::MallocData(3);
    EXPECT_THAT(std::span(data->Bytes(), data->Size()), testing::ElementsAre(0, 0, 0));
}

TEST(Data, ABufferOfNoBytesIsEmpty)
{
    EXPECT_TRUE(IVXData::MallocData(0)->Empty());
    EXPECT_FALSE(IVXData::MallocData(1)->Empty());
}

TEST(Data, BytesAreWritable)
{
    const auto data = Holding("abc");
    data->Bytes()[1] = 'X';
    EXPECT_EQ("aXc", Text(*data));
}

TEST(Data, AppendBytesKeepsWhatWasThere)
{
    const auto data = Holding("ab");
    data->AppendBytes("cd", 2);
    EXPECT_EQ("abcd", Text(*data));
}

TEST(Data, AppendBytesOfNothingMayPointNowhere)
{
    const auto data = Holding("ab");
    data->AppendBytes(nullptr, 0);
    EXPECT_EQ("ab", Text(*data));
}

TEST(Data, AppendBytesTakesItsOwnBytes)
{
    const auto data = Holding("abcdefgh");
    data->AppendBytes(data->Bytes() + 2, 5);
    EXPECT_EQ("abcdefghcdefg", Text(*data));
}

TEST(Data, AppendDataTakesAnotherBuffer)
{
    const auto data = Holding("ab");
    data->AppendData(Holding("cd"));
    EXPECT_EQ("abcd", Text(*data));
}

TEST(Data, AppendDataTakesItself)
{
    const auto data = Holding("ab");
    data->AppendData(data);
    EXPECT_EQ("abab", Text(*data));
}

TEST(Data, AppendDataOfAnEmptyHandleAppendsNothing)
{
    const auto data = Holding("ab");
    data->AppendData(nullptr);
    EXPECT_EQ("ab", Text(*data));
}

TEST(Data, GrowingBeyond32BitsIsRefusedBeforeAnythingIsRead)
{
    const auto data = Holding("ab");
    constexpr auto kMost = std::numeric_limits<std::uint32_t>::max();
    EXPECT_THROW(data->AppendBytes(data->Bytes(), kMost - 1), std::length_error);
    EXPECT_EQ("ab", Text(*data));
}

} // namespace Vexlor
