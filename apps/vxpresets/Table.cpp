#include "Table.h"

#include "Text.h"

#include <algorithm>
#include <cstddef>

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

std::vector<int> Table::Widths() const
{
    std::vector<int> widths;
    for (const auto& row : m_rows)
    {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], DisplayWidth(row[i].text));
    }
    return widths;
}

std::string Table::Line(const std::vector<Cell>& row, const std::vector<int>& widths,
                        const Style& style) const
{
    const char* const separator = m_hasHeading && style.hasLines ? " │ " : "  ";
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i)
    {
        line += i == 0 ? "" : separator;
        const auto text = i + 1 < row.size() ? Padded(row[i].text, widths[i]) : row[i].text;
        line += row[i].isStrong ? Strong(text, style) : text;
    }
    return WithoutTrailingBlanks(std::move(line)) + '\n';
}

std::string Table::Text(const Style& style) const
{
    const auto widths = Widths();
    std::string text;
    for (const auto& row : m_rows)
    {
        text += Line(row, widths, style);
        if (m_hasHeading && style.hasLines && &row == &m_rows.front())
            text += Rule(widths);
    }
    return text;
}

} // namespace Vexlor::Tool
