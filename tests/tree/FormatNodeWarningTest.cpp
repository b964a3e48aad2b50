#include "tests/tree/Nodes.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>

namespace Vexlor
{

namespace
{

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

class FormatNodeWarning : public FormatNode
{
protected:
    static std::string Warning(int index)
    {
        return "VXFormatNode->warring:GetFormatPreset idx=" + std::to_string(index) +
               " is beyond array size!";
    }

    /// What asking for that entry prints, a line in brackets each.
    std::string PrintedFor(int index) const
    {
        const ScriptedPlatform own;
        std::string text = list.At(index) ? "an entry " : "";
        for (const auto& line : own.LogLines())
            text += "[" + line.text + "]";
        return text;
    }

    const NodeList<PresetFamily> list = NodeList<PresetFamily>("AB");
};

TEST_F(FormatNodeWarning, IsPrintedOnceForAnIndexBeyondTheList)
{
    EXPECT_EQ("an entry ", PrintedFor(1));
    for (const int index : {2, 5, kHighest})
        EXPECT_EQ("[" + Warning(index) + "]", PrintedFor(index));
}

TEST_F(FormatNodeWarning, IsNotPrintedForANegativeIndex)
{
    EXPECT_EQ(nullptr, list.At(-1));
    EXPECT_EQ(nullptr, list.At(kLowest));
    EXPECT_EQ("", platform.Log());
}

TEST_F(FormatNodeWarning, IsNotPrintedReadOnlyOrForChildren)
{
    EXPECT_EQ(nullptr, list.Const().GetFormatPreset(5));
    EXPECT_EQ(nullptr, list.Const().GetChild(5));
    EXPECT_EQ(nullptr, Root()->GetChild(5));
    EXPECT_EQ("", platform.Log());
}

TEST_F(FormatNodeWarning, IsPrintedForTheFirstOfNone)
{
    EXPECT_EQ(nullptr, Root()->FirstFormatPreset());
    EXPECT_EQ(Warning(0), platform.Log());
}

TEST_F(FormatNodeWarning, IsNotPrintedForTheFirstOfNoneReadOnly)
{
    EXPECT_EQ(nullptr, std::as_const(*Root()).FirstFormatPreset());
    EXPECT_EQ("", platform.Log());
}

TEST_F(FormatNodeWarning, IsNotPrintedForTheLastOfNone)
{
    EXPECT_EQ(nullptr, Root()->LastFormatPreset());
    EXPECT_EQ("", platform.Log());
}

} // namespace

} // namespace Vexlor
