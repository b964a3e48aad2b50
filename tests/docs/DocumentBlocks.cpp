#include "tests/docs/DocumentBlocks.h"

#include <algorithm>
#include <sstream>

namespace Vexlor::Docs
{

namespace
{

constexpr std::string_view kPrompt = "$ ";
constexpr std::string_view kTool = "vxpresets ";

std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

void ReadConsole(DocumentBlock& block)
{
    for (const auto& line : LinesOf(block.text))
    {
        const bool goesOn = !block.steps.empty() && block.steps.back().output.empty() &&
                            block.steps.back().command.ends_with('\\');
        if (line.starts_with(kPrompt))
            block.steps.push_back({line.substr(kPrompt.size())});
        else if (goesOn)
            block.steps.back().command += '\n' + line;
        else
            block.steps.back().output += line + '\n';
    }
}

void Finish(DocumentBlock& block)
{
    const auto lines = LinesOf(block.text);
    if (block.text.starts_with(kPrompt))
    {
        block.kind = BlockKind::Console;
        ReadConsole(block);
    }
    else if (!lines.empty() &&
             std::ranges::all_of(lines, [](const std::string& line) { return line.starts_with(kTool); }))
    {
        block.kind = BlockKind::Commands;
        for (const auto& line : lines)
            block.steps.push_back({line});
    }
}

} // namespace

std::vector<DocumentBlock> ReadBlocks(const std::string& text)
{
    constexpr std::string_view kHidden = "<!-- run: ";
    constexpr std::string_view kHiddenEnd = " -->";
    std::vector<DocumentBlock> blocks;
    DocumentBlock block;
    bool isInside = false;
    int number = 0;
    for (const auto& line : LinesOf(text))
    {
        ++number;
        if (line.starts_with("```") && !isInside)
            block.line = number;
        else if (line.starts_with("```"))
        {
            Finish(block);
            blocks.push_back(std::move(block));
            block = {};
        }
        else if (isInside)
            block.text += line + '\n';
        else if (line.starts_with(kHidden) && line.ends_with(kHiddenEnd))
            block.hidden.push_back(
                line.substr(kHidden.size(), line.size() - kHidden.size() - kHiddenEnd.size()));
        isInside = line.starts_with("```") ? !isInside : isInside;
    }
    return blocks;
}

} // namespace Vexlor::Docs
