#pragma once

#include <string>

namespace Vexlor::Tool
{

/// "FormatFaceIDMP4"; empty where the number has no name.
std::string FaceName(int faceID);
/// "20000000 (FormatFaceIDMP4)"; the number alone where it has no name.
std::string FaceText(int faceID);
/// The face identifier that the text means: a number, the name of a known one or a part of it. Throws
/// Failure.
int FaceOf(const std::string& text);

} // namespace Vexlor::Tool
