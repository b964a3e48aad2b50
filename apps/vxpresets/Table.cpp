#include "Table.h"

#include "apps/host/Text.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace Vexlor::Tool
{

namespace
{

std::string WithoutTrailingBlanks(std::string line)
{
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

std::string Rule(const std::vector<int>& widths)
{
    std::string rule;
    for (const int width : widths)
    {
        rule += rule.empty() ? "" : "─┼─";
        for (int i = 0; i < width; ++i)
            rule += "─";
    }
    return rule + '\n';
}

int WidthOfEntries(const std::string& text)
{
    int width = 0;
    for (const auto& entry : Entries(text))
        width = std::max(width, DisplayWidth(entry));
    return width;
}

/// The row as lines, its cells cut behind commas to their columns' widths.
std::vector<std::vector<Cell>> LinesOf(const std::vector<Cell>& row, const std::vector<int>& widths)
{
    std::vector<std::vector<Cell>> lines(1, std::vector<Cell>(row.size(), ""));
    for (std::size_t column = 0; column < row.size(); ++column)
    {
        const auto texts = Wrapped(row[column].text, widths[column]);
        lines.resize(std::max(lines.size(), texts.size()), std::vector<Cell>(row.size(), ""));
        for (std::size_t i = 0; i < texts.size(); ++i)
            lines[i][column] = Cell(texts[i], row[column].isStrong);
    }
    return lines;
}

} // namespace

Cell::Cell(const std::string& content, bool standsOut) : text(OneLine(content)), isStrong(standsOut) {}

Table::Table(const std::vector<std::string>& heading) : m_hasHeading(true)
{
    std::vector<Cell> row;
    row.reserve(heading.size());
    for (const auto& title : heading)
        row.emplace_back(title, true);
    Add(std::move(row));
}

template <typename Measure>
std::vector<int> Table::Widths(Measure measure) const
{
    std::vector<int> widths;
    for (const auto& row : m_rows)
    {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], measure(row[i].text));
    }
    return widths;
}

std::vector<int> Table::WidthsWithin(const Style& style) const
{
    auto widths = Widths(DisplayWidth);
    if (style.width == 0 || widths.empty())
        return widths;
    const auto least = Widths(WidthOfEntries);
    const auto gaps = (static_cast<int>(widths.size()) - 1) * DisplayWidth(Separator(style));
    for (int limit = std::ranges::max(widths);
         limit > 0 && std::accumulate(widths.begin(), widths.end(), gaps) > style.width; --limit)
        for (std::size_t i = 0; i < widths.size(); ++i)
            widths[i] = std::min(widths[i], std::max(least[i], limit));
    return widths;
}

const char* Table::Separator(const Style& style) const
{
    return m_hasHeading && style.hasLines ? " │ " : "  ";
}

std::string Table::Line(const std::vector<Cell>& row, const std::vector<int>& widths,
                        const Style& style) const
{
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i)
    {
        line += i == 0 ? "" : Separator(style);
        const auto text = i + 1 < row.size() ? Padded(row[i].text, widths[i]) : row[i].text;
        line += row[i].isStrong ? Strong(text, style) : text;
    }
    return WithoutTrailingBlanks(std::move(line)) + '\n';
}

std::string Table::Row(const std::vector<Cell>& row, const std::vector<int>& widths, const Style& style) const
{
    std::string text;
    for (const auto& line : LinesOf(row, widths))
        text += Line(line, widths, style);
    return text;
}

std::string Table::Text(const Style& style) const
{
    const auto widths = WidthsWithin(style);
    std::string text;
    for (const auto& row : m_rows)
    {
        text += Row(row, widths, style);
        if (m_hasHeading && style.hasLines && &row == &m_rows.front())
            text += Rule(widths);
    }
    return text;
}

} // namespace Vexlor::Tool
