#pragma once

#include "SizeGeometry.h"

#include <QString>
#include <QStringList>

namespace Vexlor::Studio
{

/// What is written beneath the drawing of sizes, a line each, and the whole of it as a text.
struct SizeWords
{
    QStringList source; ///< the first line is a title
    QStringList output; ///< as above
    QString description;
};

/// The words for those sizes; none for a size that is not there.
SizeWords SizeWordsOf(const SizeFacts& facts);

} // namespace Vexlor::Studio
