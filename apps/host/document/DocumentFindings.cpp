#include "DocumentFindings.h"

#include <algorithm>

namespace Vexlor::Tool
{

std::vector<DocumentFinding> DocumentFindings::Sorted() const
{
    auto sorted = m_kept;
    std::ranges::stable_sort(sorted, {}, &DocumentFinding::offset);
    return sorted;
}

std::size_t DocumentFindings::OffsetOf(DocumentPosition value, FindingPlace place) const
{
    return place == FindingPlace::Name ? m_tree[value].name : m_tree[value].begin;
}

} // namespace Vexlor::Tool
