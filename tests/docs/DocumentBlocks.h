#pragma once

#include <string>
#include <vector>

namespace Vexlor::Docs
{

enum class BlockKind
{
    Console,  ///< commands behind "$ ", with what they print
    Commands, ///< lines that begin with "vxpresets "
    Other,
};

struct BlockStep
{
    std::string command;
    std::string output = {};
};

/// A block between ``` of a document.
struct DocumentBlock
{
    BlockKind kind = BlockKind::Other;
    int line = 0;                         ///< of its ```
    std::string text = {};                ///< all of it
    std::vector<std::string> hidden = {}; ///< commands of the comments "<!-- run: … -->" in front of it
    std::vector<BlockStep> steps = {};
};

/// The blocks of a document.
std::vector<DocumentBlock> ReadBlocks(const std::string& text);

} // namespace Vexlor::Docs
