#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{

std::atomic<int> theAllocations = 0;

} // namespace

// Not inlined, or the compiler takes free() for the wrong partner of what it sees as operator new.
#define VX_NOT_INLINED __attribute__((noinline))

VX_NOT_INLINED void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    ++theAllocations;
    return std::malloc(size);
}

VX_NOT_INLINED void* operator new(std::size_t size)
{
    if (void* memory = operator new(size, std::nothrow))
        return memory;
    throw std::bad_alloc();
}

void* operator new[](std::size_t size) { return operator new(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return operator new(size, std::nothrow);
}

VX_NOT_INLINED void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
void operator delete[](void* memory) noexcept { operator delete(memory); }
void operator delete[](void* memory, std::size_t) noexcept { operator delete(memory); }

namespace Vexlor
{

namespace
{

template <class Operation>
int AllocationsOf(Operation operation)
{
    const int before = theAllocations;
    operation();
    return theAllocations - before;
}

class JsonAllocation : public testing::Test
{
protected:
    std::shared_ptr<const IVXJsonValue> m_value = ParseJson(
        R"({"a name too long to lie inside a string": {"n": 1}, "n": 2, "list": [1, {"m": true}]})");
};

} // namespace

TEST_F(JsonAllocation, IsCounted)
{
    EXPECT_LT(0, AllocationsOf([] { EXPECT_TRUE(ParseJson("[1]")); }));
}

TEST_F(JsonAllocation, ATextThatIsHandedOverWithRoomIsNotCopied)
{
    const std::string text = "[" + std::string(1000, ' ') + "1]";
    std::string own;
    own.reserve(text.size() + kJsonRoom);
    own = text;
    const int copied = AllocationsOf([&] { EXPECT_TRUE(ParseJson(text)); });
    EXPECT_EQ(copied - 1, AllocationsOf([&] { EXPECT_TRUE(ParseJsonInPlace(std::move(own))); }));
}

TEST_F(JsonAllocation, ObjectsLeaveTheirRoomToTheNextOnes)
{
    const auto build = []
    {
        const auto value = IVXJsonValue::JsonValueNull();
        for (int i = 0; i < 100; ++i)
            value->SetValueInt("member " + std::to_string(i), i);
        EXPECT_EQ(99, value->GetValueInt("member 99"));
        EXPECT_FALSE(value->HasKey("member 100"));
    };
    const auto buildOther = []
    {
        const auto value = IVXJsonValue::JsonValueNull();
        for (int i = 100; i < 200; ++i)
            value->SetValueInt("member " + std::to_string(i), i);
        EXPECT_FALSE(value->HasKey("member 99"));
        EXPECT_EQ(199, value->GetValueInt("member 199"));
    };
    const int first = AllocationsOf(build);
    EXPECT_GT(first, AllocationsOf(buildOther));
}

TEST_F(JsonAllocation, MembersAreFoundWithoutAny)
{
    EXPECT_EQ(0, AllocationsOf([&] { EXPECT_TRUE((*m_value)["a name too long to lie inside a string"]); }));
    EXPECT_EQ(0, AllocationsOf([&] { EXPECT_TRUE((*m_value)["absent"]); }));
    EXPECT_EQ(0, AllocationsOf([&] { EXPECT_TRUE(m_value->HasKey("n")); }));
}

TEST_F(JsonAllocation, ArraysAreWalkedWithoutAny)
{
    EXPECT_EQ(0, AllocationsOf([&] { EXPECT_EQ(2, m_value->GetValueArray("list")->Size()); }));
    EXPECT_EQ(0,
              AllocationsOf([&] { EXPECT_TRUE(m_value->GetValueArray("list")->At(1)->GetValueBool("m")); }));
    EXPECT_EQ(0, AllocationsOf([&] { EXPECT_TRUE(m_value->GetValueArray("absent")->At(5)); }));
}

TEST_F(JsonAllocation, NumbersAreReadWithoutAny)
{
    EXPECT_EQ(0, AllocationsOf([&] { EXPECT_EQ(2, m_value->GetValueInt("n")); }));
    EXPECT_EQ(0, AllocationsOf([&] { EXPECT_EQ(2, m_value->GetValueInt64("n")); }));
}

TEST_F(JsonAllocation, MembersOfABuiltValueAreFoundWithoutAny)
{
    const auto value = IVXJsonValue::JsonValueNull();
    const auto child = IVXJsonValue::JsonValueNull(); // held, or it would be kept as text
    value->SetValueObject("child", child);
    value->SetValueArray("list", {nullptr});
    EXPECT_EQ(0, AllocationsOf([&] { EXPECT_TRUE((*value)["child"]); }));
    EXPECT_EQ(0, AllocationsOf([&] { EXPECT_EQ(1, value->GetValueArray("list")->Size()); }));
    EXPECT_EQ(0, AllocationsOf([&] { EXPECT_TRUE(value->GetValueArray("list")->At(0)); }));
}

} // namespace Vexlor
