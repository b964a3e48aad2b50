#pragma once

#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/CodecTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

namespace Vexlor
{

/// The identifiers of all codecs of one type.
inline std::vector<int> CodecIDs(int type)
{
    std::vector<int> ids;
    for (const auto& codec : CodecTable())
        if (codec.type == type)
            ids.push_back(codec.id);
    return ids;
}

/// The letters and digits of a codec's name, for the name of a test.
inline std::string CodecTestName(const testing::TestParamInfo<int>& test)
{
    std::string name(FindCodec(test.param)->name);
    std::erase_if(name, [](unsigned char letter) { return !std::isalnum(letter); });
    return name;
}

} // namespace Vexlor
