#pragma once

#include "BitrateModel.h"
#include "BitrateTable.h"

namespace Vexlor
{

/// A grade's bitrate within what the standard lets such a picture have, in bits per second. A codec with
/// levels has what the lowest one for the picture's size and rate allows, or the levels beside it that hold
/// no more but bits: a grade is not to raise the level that players must have. Never more than the preferred
/// encoder takes.
double WithinBounds(const VideoBitrateRow& row, const PictureStream& stream, double bitrate);
/// The bitrate within what such sound may have, or the nearest one of those that it can have.
double WithinBounds(const AudioBitrateRow& row, const SoundStream& stream, double bitrate);

/// The bitrate nearest to a wanted one that the codec's pictures can have: the profile's, the nearest of a
/// list or the codec's own where they have those, else the wanted one within what the codec's highest level
/// allows and the preferred encoder takes: who wants more than the lowest level for the picture wants a
/// higher one. An untold bitrate, 0, stays where the codec takes any.
int NearestBitrate(const CodecCapabilities& codec, const PictureStream& stream, int profile, int wanted);
/// As above, for sound.
int NearestBitrate(const CodecCapabilities& codec, const SoundStream& stream, int wanted);

} // namespace Vexlor
