#pragma once

#include <string_view>

namespace Vexlor
{

class IVXCodecParameter;

/// Brings an output's stream within what that container takes of its codec. A stream that it takes, and one
/// of a container that is not known, stays as it is.
void FitIntoContainer(IVXCodecParameter& stream, std::string_view formatName);

} // namespace Vexlor
