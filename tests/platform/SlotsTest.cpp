#include "tests/platform/Slots.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

class Sample
{
public:
    virtual void First() = 0;
    virtual int Pair(int) = 0;
    virtual int Pair(int) const = 0;
    void NotVirtual();
    virtual void Last() {}

protected:
    ~Sample() = default;
};

TEST(Slots, CountVirtualOperationsFromZero)
{
    EXPECT_EQ(0, SlotOf(&Sample::First));
    EXPECT_EQ(3, SlotOf(&Sample::Last));
}

TEST(Slots, TellTheFormsOfAPairApart)
{
    EXPECT_EQ(1, SlotOf(MutableForm(&Sample::Pair)));
    EXPECT_EQ(2, SlotOf(ConstForm(&Sample::Pair)));
}

TEST(Slots, OfAWholeInterfaceInOrderAreTheNumbersFromZero)
{
    const auto slots =
        SlotsOf(&Sample::First, MutableForm(&Sample::Pair), ConstForm(&Sample::Pair), &Sample::Last);
    EXPECT_EQ(EverySlot(4), slots);
    EXPECT_NE(EverySlot(2), SlotsOf(&Sample::Last, &Sample::First));
}

} // namespace

} // namespace Vexlor
