#pragma once

#include <cstdint>

struct AVIOContext;

namespace Vexlor
{

/// What the tables of an MP4 or QuickTime file say of its samples.
struct MovieClaims
{
    /// Index entries that no byte of the file stands behind: a table of samples of one size has one number
    /// for all of them, and libavformat makes an entry for each before it reads the first. Counted up to
    /// 2^62, where the walk ends.
    std::int64_t entries = 0;
    bool isCompressed = false; ///< the tables are compressed, so that nothing is known of them
};

/// Walks the boxes of a file that long, and goes back to its beginning.
MovieClaims ReadMovieClaims(AVIOContext& file, std::int64_t size);

} // namespace Vexlor
