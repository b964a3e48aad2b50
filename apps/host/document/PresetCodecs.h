#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{
class IVXCodecPreset;
class IVXFormatPreset;
} // namespace Vexlor

namespace Vexlor::Tool
{

/// One of the two lists of codecs of a format preset.
enum class StreamKind
{
    Video,
    Audio,
};

/// The names of the codecs that may be chosen: those of the list and, behind them, what the container takes
/// further.
std::vector<std::string> CodecChoices(IVXFormatPreset& preset, StreamKind kind);

/// Makes the codec of that name or number the current one; one that is not in the list and that the container
/// takes is put behind it. Answers its name. Throws Failure.
std::string ChooseCodec(IVXFormatPreset& preset, StreamKind kind, std::string_view text, bool& isAdded);

/// Makes the list hold the codecs of those names, in that order, the first of them the current one: "H.264,
/// HEVC", "all" that the container takes, or "none". Those that were in it keep what they are set to. Answers
/// their names. Throws Failure.
std::string SetCodecs(IVXFormatPreset& preset, StreamKind kind, const std::string& text);

/// The current codec, whose values are set. Throws Failure where none is chosen.
IVXCodecPreset& ChosenCodec(IVXFormatPreset& preset, StreamKind kind);

} // namespace Vexlor::Tool
