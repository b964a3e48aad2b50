#pragma once

#include "TreeItem.h"

#include <array>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace Vexlor::Studio
{

/// The names of what stands in a category, so that what comes there gets one that no other of its kind has.
/// Fast for thousands, too.
class FreeNames
{
public:
    explicit FreeNames(const IVXFormatNode& category);

    /// That name for the item, with a number behind it where it is taken. It is taken from then on.
    QString Take(const TreeItem& item, const QString& name);

private:
    /// The names of one kind.
    struct Kind
    {
        std::unordered_set<std::string> taken;
        std::unordered_map<std::string, int> next; ///< number to try behind a name; those before are taken
    };

    std::array<Kind, 2> m_kinds; ///< of categories, of presets
};

} // namespace Vexlor::Studio
