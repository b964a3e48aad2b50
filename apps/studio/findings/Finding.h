#pragma once

#include "apps/studio/document/TreeItem.h"

#include <QString>

#include <vector>

namespace Vexlor::Studio
{

/// Something that a check or an import has found.
struct Finding
{
    enum class Kind
    {
        Error,
        Warning,
        Note,
    };

    Kind kind = Kind::Note;
    QString where = {}; ///< in names
    QString what = {};
    TreeItem item = {}; ///< what it is about; neither where that is not known
};

using Findings = std::vector<Finding>;

} // namespace Vexlor::Studio
