#include "ListText.h"

#include "apps/host/Text.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr int kIndent = 2;
constexpr int kNameWidth = 16;
constexpr int kWidest = 100;

std::string Blanks(int count) { return Padded({}, count); }

std::string Bracketed(const std::string& entry, bool isCurrent)
{
    return isCurrent ? '[' + entry + ']' : entry;
}

} // namespace

std::string ListText(const NamedList& list, const Style& style)
{
    std::string text = Blanks(kIndent) + Padded(OneLine(list.name), kNameWidth);
    const int lineWidth = style.width > 0 ? std::min(style.width, kWidest) : kWidest;
    int column = kIndent + kNameWidth;
    for (std::size_t i = 0; i < list.entries.size(); ++i)
    {
        const bool isCurrent = static_cast<int>(i) == list.current;
        const bool isLast = i + 1 == list.entries.size();
        const auto entry = Bracketed(OneLine(list.entries[i]), isCurrent) + (isLast ? "" : ",");
        const int width = DisplayWidth(entry) + 1;
        if (i > 0 && column + width > lineWidth)
        {
            column = kIndent + kNameWidth;
            text += '\n' + Blanks(column);
        }
        text += ' ' + (isCurrent ? Strong(entry, style) : entry);
        column += width;
    }
    return text + (list.entries.empty() ? " none\n" : "\n");
}

} // namespace Vexlor::Tool
