#pragma once

#include <QStringList>

class QComboBox;

namespace Vexlor::Studio
{

/// Shows these entries with the one at current picked. A number outside the list is shown as what it is.
/// Nothing is touched that is right already, and nothing is told.
void FillCombo(QComboBox& combo, const QStringList& texts, int current);
/// Makes the box as narrow as its place is, whatever its entries.
void LetShrink(QComboBox& combo);

} // namespace Vexlor::Studio
