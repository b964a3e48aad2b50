#pragma once

#include <string>

namespace Vexlor::Tool
{

/// The text of a value of a document as it becomes when what was read from it has been changed: before is
/// what the library wrote of it as it was read, after what it writes now, both without line ends.
///
/// Only what differs between the two is changed in the text, so that members which nobody reads, the order of
/// members and the layout stay.
std::string MergedText(const std::string& text, const std::string& before, const std::string& after);

} // namespace Vexlor::Tool
