#pragma once

#include "TreeItem.h"

#include <unordered_map>
#include <vector>

namespace Vexlor::Studio
{

/// Where items stand; looks at the whole tree once, so that thousands are found fast, and is good for as long
/// as the tree stays as it is.
class PlaceFinder
{
public:
    explicit PlaceFinder(std::shared_ptr<IVXFormatNode> root);

    /// Without a parent for the root, and for what is not in the tree.
    TreePlace Find(const TreeItem& item) const;

private:
    struct Position
    {
        std::size_t category; ///< in the list of all
        int index;
    };

    std::vector<std::shared_ptr<IVXFormatNode>> m_categories;
    std::unordered_map<const void*, Position> m_positions;
};

} // namespace Vexlor::Studio
