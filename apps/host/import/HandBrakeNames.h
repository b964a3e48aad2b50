#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Vexlor::Tool
{

// What HandBrake's presets call things, and what those are here. Sources: HandBrake's documentation, its
// command line reference (encoders, mixdowns, containers), and presets that people have published.

/// A video encoder.
struct HandBrakeEncoder
{
    std::string_view name;
    std::string_view codec;
    std::string_view format = {}; ///< of pixels; empty for what the codec has by itself
    bool isHardware = false;
};

/// A way of mixing channels.
struct HandBrakeMix
{
    std::string_view name;
    std::string_view layout;
    bool isExact = true;
};

/// The container; empty for a name that is not known.
std::string HandBrakeContainer(std::string_view name);
/// Nothing for a name that is not known.
const HandBrakeEncoder* HandBrakeVideoEncoder(std::string_view name);
/// The codec of an audio encoder; empty for a name that is not known.
std::string HandBrakeAudioCodec(std::string_view name);
const HandBrakeMix* HandBrakeMixdown(std::string_view name);
/// The profile's display name, or the name as it is; empty for none.
std::string HandBrakeProfile(std::string_view name);
/// The level's display name; empty for none.
std::string HandBrakeLevel(std::string_view name);
/// The grade that a place on the encoder's scale of quality comes nearest to; empty for an encoder whose
/// scale is not known.
std::string HandBrakeGrade(std::string_view encoder, double quality);
/// A sample rate, which is told in kHz or in Hz, as text or as number; empty for none.
std::string HandBrakeSampleRate(std::string_view text, std::optional<double> number);
/// True for a codec that has no bitrate of its own.
bool IsLossless(std::string_view codec);

/// True for members that are read, or that say nothing of the output.
bool IsHandBrakeMemberRead(std::string_view name);
/// Why a member that is not read is left out.
std::string HandBrakeReason(std::string_view name);

/// The number without a fraction.
std::string WholeText(double number);
/// The number with up to seven digits.
std::string DecimalText(double number);

} // namespace Vexlor::Tool
