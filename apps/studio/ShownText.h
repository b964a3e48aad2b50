#pragma once

#include "apps/host/Text.h"

#include <QString>

namespace Vexlor::Studio
{

/// A text that comes from the library, a document or a file, as it may be shown: on one line, without what
/// would steer a terminal.
inline QString ShownText(std::string_view text) { return QString::fromStdString(Tool::OneLine(text)); }

} // namespace Vexlor::Studio
