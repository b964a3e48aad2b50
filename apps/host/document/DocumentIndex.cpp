#include "DocumentIndex.h"

#include "DocumentFindings.h"

#include <limits>

namespace Vexlor::Tool
{

namespace
{

DocumentWording WordingOf(std::int64_t index, std::uint32_t count)
{
    const auto is = "is " + std::to_string(index);
    if (count == 0)
        return {is + ", but the list is empty", "0 or -1"};
    return {is + ", but the list has " + std::to_string(count) + (count == 1 ? " entry" : " entries"),
            "-1 to " + std::to_string(count - 1)};
}

} // namespace

int IntegerIn(const DocumentTree& tree, DocumentPosition object, std::string_view name)
{
    const auto number = tree.FindInteger(object, name).value_or(0);
    const bool fits = number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
    return fits ? static_cast<int>(number) : 0;
}

void CheckIndex(const DocumentTree& tree, DocumentPosition object, std::string_view index,
                std::uint32_t count, DocumentFindings& findings)
{
    const auto position = IntegerIn(tree, object, index);
    const bool isFirstOfNone = position == 0 && count == 0;
    if (isFirstOfNone || (position >= -1 && position < static_cast<std::int64_t>(count)))
        return;
    if (const auto value = tree.Find(object, index))
        findings.Error("index", *value, [&] { return WordingOf(position, count); });
}

} // namespace Vexlor::Tool
