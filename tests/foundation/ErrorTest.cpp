#include "runtime/foundation/VXError.h"

#include <gtest/gtest.h>

namespace Vexlor
{

TEST(Error, ASuccessHasNoMessage)
{
    EXPECT_TRUE(MallocSuccess()->Succeed());
    EXPECT_EQ("", MallocSuccess()->Message());
}

TEST(Error, AFailureTellsItsMessage)
{
    const auto error = MallocFailure("disk full");
    EXPECT_FALSE(error->Succeed());
    EXPECT_EQ("disk full", error->Message());
}

} // namespace Vexlor
