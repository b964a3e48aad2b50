#pragma once

#include "Style.h"

#include <string>
#include <vector>

namespace Vexlor::Tool
{

/// One field of a table; its text is made fit for one line.
struct Cell
{
    Cell(const std::string& content, bool standsOut = false);
    Cell(const char* content) : Cell(std::string(content)) {}

    std::string text;
    bool isStrong;
};

/// Text in aligned columns.
class Table
{
public:
    /// A table without a heading, which is never drawn with rules.
    Table() = default;
    explicit Table(const std::vector<std::string>& heading);

    /// Adds a row; it may be shorter or longer than the others.
    void Add(std::vector<Cell> row) { m_rows.push_back(std::move(row)); }
    /// The lines, each with its end and without blanks in front of it. Where the style bounds their width,
    /// the widest columns become narrower and their text goes on below.
    std::string Text(const Style& style) const;

private:
    template <typename Measure>
    std::vector<int> Widths(Measure measure) const;
    std::vector<int> WidthsWithin(const Style& style) const;
    const char* Separator(const Style& style) const;
    std::string Line(const std::vector<Cell>& row, const std::vector<int>& widths, const Style& style) const;
    std::string Row(const std::vector<Cell>& row, const std::vector<int>& widths, const Style& style) const;

    bool m_hasHeading = false;
    std::vector<std::vector<Cell>> m_rows;
};

} // namespace Vexlor::Tool
