#pragma once

#include "StreamCaps.h"

#include <string>
#include <string_view>

namespace Vexlor::Tool
{

// What GStreamer's caps call things, and what those are here. Sources: the lists of media types and of
// encoding profiles in GStreamer's documentation.

/// The container of a file with those streams; empty for caps that are none here.
std::string GStreamerContainer(const StreamCaps& caps, bool hasVideo);
/// The codec; empty for caps that are none here.
std::string GStreamerCodec(const StreamCaps& caps);
/// The container that a codec is put into where none is named; empty for none.
std::string GStreamerContainerOf(std::string_view codec);
/// The profile's display name as far as its letters tell: "high-10" is "high 10".
std::string GStreamerProfile(const std::string& name);
/// The layout of so many channels; empty for a number without a usual one.
std::string GStreamerLayout(std::string_view channels);
/// True for a field that tells the codec itself.
bool IsOfTheCodec(std::string_view field);

} // namespace Vexlor::Tool
