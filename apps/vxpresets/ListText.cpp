#include "ListText.h"

#include "Text.h"

namespace Vexlor::Tool
{

namespace
{

constexpr int kIndent = 2;
constexpr int kNameWidth = 16;
constexpr int kLineWidth = 100;

std::string Blanks(int count) { return Padded({}, count); }

} // namespace

std::string ListText(const NamedList& list, const Style& style)
{
    std::string text = Blanks(kIndent) + Padded(OneLine(list.name), kNameWidth);
    int column = DisplayWidth(text);
    for (std::size_t i = 0; i < list.entries.size(); ++i)
    {
        const bool isCurrent = static_cast<int>(i) == list.current;
        const bool isLast = i + 1 == list.entries.size();
        const auto plain = OneLine(list.entries[i]);
        const auto entry = (isCurrent ? '[' + plain + ']' : plain) + (isLast ? "" : ",");
        const int width = DisplayWidth(entry) + 1;
        const bool isFirst = i == 0;
        if (!isFirst && column + width > kLineWidth)
        {
            column = kIndent + kNameWidth;
            text += '\n' + Blanks(column);
        }
        text += ' ' + (isCurrent ? Strong(entry, style) : entry);
        column += width;
    }
    return text + '\n';
}

} // namespace Vexlor::Tool
