#pragma once

#include <span>
#include <string_view>

namespace Vexlor
{

/// One profile of one codec. Numbers are the standard's own where it has one, and stand in preset documents.
struct ProfileRow
{
    int number;
    int avNumber;              ///< libavcodec's number
    std::string_view name;     ///< display name: "Main 10"
    std::string_view encoders; ///< the encoders that make it, separated by blanks; empty when it is only read
    std::string_view option =
        {}; ///< text of the encoder's own "profile" option; empty: avNumber is what is set
};

/// The profiles of a codec of ours, in the order in which a user is offered them; empty for a codec without
/// profiles.
std::span<const ProfileRow> ProfilesOf(int codecID);
/// The number of a profile of libavcodec's; VXProfileUnknown when it has none.
int ProfileNumberOf(int codecID, int avProfile);

} // namespace Vexlor
