#pragma once

namespace Vexlor
{
class IVXCodecPreset;
}

namespace Vexlor::Studio
{

/// True where the current quality is a bitrate of the user's own.
bool HasOwnBitrate(const IVXCodecPreset& codec);
/// The current quality's own bitrate, in bits per second; -1 where it has none.
int OwnBitrate(const IVXCodecPreset& codec);
/// Sets the current quality's own bitrate; nothing where it has none.
void SetOwnBitrate(IVXCodecPreset& codec, int bitrate);
/// Sets what the codec would take at a normal quality where the own bitrate is one that nobody has set.
void ProposeBitrate(IVXCodecPreset& codec);

} // namespace Vexlor::Studio
