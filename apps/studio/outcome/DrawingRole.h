#pragma once

namespace Vexlor::Studio
{

/// Has screen readers take the drawings of an outcome for pictures, which have words beside them.
void TellThatDrawingsArePictures();

} // namespace Vexlor::Studio
