#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Vexlor::Tool
{

/// A value of caps: one text, a choice of several, or a range of two.
struct CapsValue
{
    enum class Kind
    {
        Single,
        Choice,
        Range,
    };

    Kind kind = Kind::Single;
    std::vector<std::string> texts = {}; ///< without types; of a range the lowest and the highest
};

struct CapsField
{
    std::string name;
    CapsValue value;
};

/// What GStreamer calls caps: a media type and what is asked of it, as
/// "video/x-h264, profile=high, width=[1,1920]".
struct StreamCaps
{
    std::string media;
    std::vector<CapsField> fields = {};

    /// The value of that field; nothing where there is none.
    const CapsValue* Find(std::string_view name) const;
    /// The text of a single value; empty otherwise.
    std::string TextOf(std::string_view name) const;
};

/// Reads the alternatives of a text, parted by semicolons. Throws Failure, with what stands in the way.
std::vector<StreamCaps> ReadCaps(std::string_view text);

} // namespace Vexlor::Tool
