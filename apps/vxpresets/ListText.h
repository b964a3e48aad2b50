#pragma once

#include "Style.h"

#include <string>
#include <vector>

namespace Vexlor::Tool
{

/// A list of values, one of which may be the current one.
struct NamedList
{
    std::string name;
    std::vector<std::string> entries;
    int current = -1;
};

/// The name, and behind it the entries on as many lines as they need, the current one in brackets; "none" for
/// an empty list.
std::string ListText(const NamedList& list, const Style& style);

} // namespace Vexlor::Tool
