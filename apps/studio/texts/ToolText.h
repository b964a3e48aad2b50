#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace Vexlor::Studio
{

/// A text of the tools, the library or the platform beneath, in the language of the window, numbers with the
/// decimal point of its user. They tell everything in English, for they know of no languages; ToolPatterns
/// lists what they tell. What is not listed stays as it is. One line, as ShownText.
QString ToolText(std::string_view text);
/// The grade of quality of that name; "High" is a profile of some codecs, too.
QString GradeText(std::string_view name);
/// The unit of that name, "Mb/s", as it is shown.
QString UnitText(const char* name);
/// What a user has typed, its numbers and units as the tools read them: "44,1 kHz" is "44.1 kHz".
std::string TypedText(const QString& text);

} // namespace Vexlor::Studio
