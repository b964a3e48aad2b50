#pragma once

#include <string_view>

namespace Vexlor
{

class IVXCodecParameter;

/// Brings an output's stream within what that container takes of its codec, and gives it the tag that the
/// container's players want, where it has none and the muxer's own choice is another. A stream that the
/// container takes, and one of a container that is not known, stays as it is. Where the container has a most
/// of bitrates, it is the highest of a variable one of pictures that tells none. Pictures of a codec that has
/// but a few bitrates, or one for each profile, have one of those afterwards, whatever the container.
void FitIntoContainer(IVXCodecParameter& stream, std::string_view formatName);

} // namespace Vexlor
