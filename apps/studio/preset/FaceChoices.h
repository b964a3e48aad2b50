#pragma once

class QComboBox;

namespace Vexlor::Studio
{

/// Offers no icon and every known one, with the face identifiers as data.
void FillFaces(QComboBox& combo);

} // namespace Vexlor::Studio
