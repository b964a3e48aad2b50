#pragma once

namespace Vexlor
{
class IVXFormatNode;
class IVXFormatPreset;
class IVXJsonValue;
} // namespace Vexlor

namespace Vexlor::Tool
{

/// Chooses in every codec preset the grade of quality that the document has written down, which the library
/// does not read. Custom is left out: its bitrate is in no document.
void TakeUpQualities(IVXFormatPreset& preset, const IVXJsonValue& json);
/// The same in a whole tree.
void TakeUpQualities(IVXFormatNode& node, const IVXJsonValue& json);

} // namespace Vexlor::Tool
