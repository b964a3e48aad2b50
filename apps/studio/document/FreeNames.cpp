#include "FreeNames.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

namespace Vexlor::Studio
{

FreeNames::FreeNames(const IVXFormatNode& category)
{
    for (const auto& child : category.GetChildList())
        m_kinds[0].taken.insert(child->Name());
    for (int i = 0; i < category.FormatPresetCount(); ++i)
        m_kinds[1].taken.insert(category.GetFormatPreset(i)->Name());
}

QString FreeNames::Take(const TreeItem& item, const QString& name)
{
    constexpr int kFirstNumber = 2;
    auto& kind = m_kinds[item.IsPreset() ? 1 : 0];
    auto free = name;
    auto& number = kind.next.try_emplace(name.toStdString(), kFirstNumber).first->second;
    while (!kind.taken.insert(free.toStdString()).second)
        free = name + ' ' + QString::number(number++);
    return free;
}

} // namespace Vexlor::Studio
