#pragma once

#include "tests/format/CodecPresetSide.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <tuple>

namespace Vexlor
{

/// A format preset with a list under test and, on the other side, the list XYZ that must stay as it is.
class TwoLists
{
public:
    TwoLists(const CodecPresetSide& side, std::string_view letters, int index)
        : m_side(side), m_other(side.name == kAudioSide.name ? kVideoSide : kAudioSide),
          m_preset(IVXFormatPreset::MallocFormatPreset(
              Json("{" + Members(side, letters, index) + "," + Members(m_other, "XYZ", 1) + "}")))
    {
    }

    template <class Operation, class... Arguments>
    auto operator()(Operation operation, Arguments... arguments) const
    {
        return ((*m_preset).*operation)(arguments...);
    }

    const IVXFormatPreset& Const() const { return *m_preset; }

    /// "ABC 1": the list and its index. Complains when the other list has changed.
    std::string Text() const
    {
        EXPECT_EQ("XYZ 1", TextOf(m_other)) << "the other list";
        return TextOf(m_side);
    }

private:
    std::string TextOf(const CodecPresetSide& side) const
    {
        return Letters((*this)(side.presets)) + " " + std::to_string((*this)(side.index));
    }

    const CodecPresetSide& m_side;
    const CodecPresetSide& m_other;
    std::shared_ptr<IVXFormatPreset> m_preset;
};

template <class Case>
std::string NameOfCase(const testing::TestParamInfo<std::tuple<const CodecPresetSide*, Case>>& test)
{
    return std::string(std::get<0>(test.param)->name) + std::get<1>(test.param).name;
}

inline const auto kSides = testing::Values(&kAudioSide, &kVideoSide);

} // namespace Vexlor
