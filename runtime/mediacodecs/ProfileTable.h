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

/// One level of one codec. Numbers as above.
struct LevelRow
{
    int number;
    int avNumber;          ///< libavcodec's number
    std::string_view name; ///< display name: "4.1"
    /// Text of the encoder's own level option; empty: avNumber is what is set.
    std::string_view option = {};
};

/// The profiles of a codec of ours, simplest first; empty for a codec without profiles.
std::span<const ProfileRow> ProfilesOf(int codecID);
/// The levels of a codec of ours, lowest first; empty for a codec without levels.
std::span<const LevelRow> LevelsOf(int codecID);
/// The number of a profile of libavcodec's; VXProfileUnknown when it has none.
int ProfileNumberOf(int codecID, int avProfile);
/// The number of a level of libavcodec's, of the main tier where there are two; VXLevelUnknown when it has
/// none.
int LevelNumberOf(int codecID, int avLevel);

} // namespace Vexlor
