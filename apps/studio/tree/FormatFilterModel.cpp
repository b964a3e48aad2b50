#include "FormatFilterModel.h"

#include "FormatTreeModel.h"
#include "apps/studio/document/StudioDocument.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <algorithm>

namespace Vexlor::Studio
{

FormatFilterModel::FormatFilterModel(StudioDocument& document, QObject* parent)
    : QSortFilterProxyModel(parent), m_document(document)
{
    setDynamicSortFilter(false);
    m_timer.setSingleShot(true);
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &FormatFilterModel::Search);
    // What is renamed stays until the next search, or it would go from under the hands of who types the name.
    auto& tree = document.Tree();
    connect(&tree, &PresetTree::Reset, this, &FormatFilterModel::SearchSoon);
    connect(&tree, &PresetTree::Inserted, this, &FormatFilterModel::SearchSoon);
    connect(&tree, &PresetTree::Removed, this, &FormatFilterModel::SearchSoon);
    connect(&tree, &PresetTree::Rearranged, this, &FormatFilterModel::SearchSoon);
}

void FormatFilterModel::SetText(const QString& text)
{
    auto words = text.simplified().split(' ', Qt::SkipEmptyParts);
    if (words == m_words)
        return;
    m_words = std::move(words);
    Search();
}

// Many changes at once need one search.
void FormatFilterModel::SearchSoon()
{
    if (IsNarrowed())
        m_timer.start();
}

void FormatFilterModel::Search()
{
    emit Searching();
    m_found.clear();
    m_foundCount = 0;
    if (IsNarrowed())
        SearchIn(*m_document.Root(), {});
    invalidateFilter();
    emit Found();
}

// As deep as the categories, which their reader bounds.
bool FormatFilterModel::SearchIn(IVXFormatNode& node, const QString& path)
{
    bool isFound = Matches(path);
    for (int i = 0; i < node.FormatPresetCount(); ++i)
    {
        const auto preset = node.GetFormatPreset(i);
        if (!Matches(path + QString::fromStdString(preset->Name() + '\n' + preset->FormatName())))
            continue;
        m_found.insert(preset.get());
        ++m_foundCount;
        isFound = true;
    }
    for (const auto& child : node.GetChildList())
        isFound |= SearchIn(*child, path + QString::fromStdString(child->Name()) + '\n');
    if (isFound)
        m_found.insert(&node);
    return isFound;
}

bool FormatFilterModel::Matches(const QString& text) const
{
    return std::ranges::all_of(m_words, [&text](const QString& word)
                               { return text.contains(word, Qt::CaseInsensitive); });
}

bool FormatFilterModel::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    if (!IsNarrowed())
        return true;
    const auto* model = static_cast<const FormatTreeModel*>(sourceModel());
    const auto item = model->ItemAt(model->index(row, 0, parent));
    const void* object = item.preset ? static_cast<const void*>(item.preset.get()) : item.category.get();
    return m_found.contains(object);
}

} // namespace Vexlor::Studio
