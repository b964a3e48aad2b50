#include "PlaceFinder.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

namespace Vexlor::Studio
{

PlaceFinder::PlaceFinder(std::shared_ptr<IVXFormatNode> root) : m_categories{std::move(root)}
{
    for (std::size_t i = 0; i < m_categories.size(); ++i)
    {
        const auto category = m_categories[i];
        const auto children = category->GetChildList();
        for (std::size_t child = 0; child < children.size(); ++child)
            m_positions.try_emplace(children[child].get(), Position{i, static_cast<int>(child)});
        for (int preset = 0; preset < category->FormatPresetCount(); ++preset)
            m_positions.try_emplace(category->GetFormatPreset(preset).get(), Position{i, preset});
        m_categories.insert(m_categories.end(), children.begin(), children.end());
    }
}

TreePlace PlaceFinder::Find(const TreeItem& item) const
{
    const void* key = item.preset ? static_cast<const void*>(item.preset.get()) : item.category.get();
    const auto found = m_positions.find(key);
    return found == m_positions.end() ? TreePlace{}
                                      : TreePlace{m_categories[found->second.category], found->second.index};
}

} // namespace Vexlor::Studio
