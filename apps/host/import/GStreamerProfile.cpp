#include "GStreamerProfile.h"

#include "GStreamerNames.h"
#include "ImportedPreset.h"
#include "apps/host/Failure.h"
#include "apps/host/Quantities.h"
#include "apps/host/Text.h"

#include "IVXFormatPreset.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>

namespace Vexlor::Tool
{

namespace
{

using Kind = CapsValue::Kind;

constexpr const char* kElement = "a setting of the encoder, of which a preset here has none";

std::string Same(const std::string& text) { return text; }

std::string Layout(const std::string& text) { return GStreamerLayout(text); }

std::string Ratio(const std::string& text)
{
    auto ratio = text;
    std::ranges::replace(ratio, '/', ':');
    return ratio;
}

/// A field of caps, and the value of a preset that it tells.
struct Field
{
    bool isVideo;
    std::string_view name;
    std::string_view key;
    std::string (*ours)(const std::string& text);
};

constexpr std::array kFields{
    Field{true, "framerate", "frame-rate", Same},
    Field{true, "profile", "video-profile", GStreamerProfile},
    Field{true, "level", "video-level", Same},
    Field{true, "pixel-aspect-ratio", "sample-aspect", Ratio},
    Field{false, "rate", "sample-rate", Same},
    Field{false, "channels", "channels", Layout},
    Field{false, "profile", "audio-profile", GStreamerProfile},
    Field{false, "level", "audio-level", Same},
};

/// Reads what one profile asks for.
class ProfileReader
{
public:
    ProfileReader(const KeyFileGroup& profile, std::vector<const KeyFileGroup*> streams,
                  ImportedPreset& target)
        : m_profile(profile), m_streams(std::move(streams)), m_target(target)
    {
    }

    void Read();

private:
    using Caps = std::optional<StreamCaps>;

    ImportSource SourceOf(const KeyFileGroup& group, std::string_view key) const;
    Caps CapsOf(const KeyFileGroup& group, std::string_view key);
    const KeyFileGroup* FirstOf(std::string_view type) const;
    bool MakeContainer();
    void ReadStream(const KeyFileGroup& stream, bool isVideo);
    void ReadFields(const KeyFileGroup& stream, const StreamCaps& caps, std::string_view key, bool isVideo);
    void ReadSizes(const ImportSource& source, const StreamCaps& caps);
    void ReadLeastSize(const ImportSource& source, const std::string& size);
    bool ReadField(const ImportSource& source, const CapsField& field, bool isVideo);
    void SetOne(const ImportSource& source, const Field& field, const CapsValue& value);
    void FindTheRest(const KeyFileGroup& group, const std::set<std::string_view>& read);

    const KeyFileGroup& m_profile;
    std::vector<const KeyFileGroup*> m_streams;
    ImportedPreset& m_target;
};

void ProfileReader::Read()
{
    if (!MakeContainer())
        return;
    m_target.Preset()->SetDescription(m_profile.ValueOf("description"));
    for (const bool isVideo : {true, false})
    {
        const auto* stream = FirstOf(isVideo ? "video" : "audio");
        if (stream)
            ReadStream(*stream, isVideo);
        else
            m_target.Set(SourceOf(m_profile, {}), isVideo ? "video-codecs" : "audio-codecs", "none");
    }
    const auto* const video = FirstOf("video");
    const auto* const audio = FirstOf("audio");
    for (const auto* stream : m_streams)
        if (stream != video && stream != audio)
            m_target.LeaveOut(SourceOf(*stream, {}), "an output has one picture and one sound track");
    FindTheRest(m_profile, {"name", "description", "format", "type"});
}

ImportSource ProfileReader::SourceOf(const KeyFileGroup& group, std::string_view key) const
{
    const auto* entry = group.Find(key);
    const auto name = &group == &m_profile ? std::string() : group.name + (key.empty() ? "" : ".");
    return {name + std::string(key), entry ? entry->offset : group.offset};
}

/// The first of the alternatives.
ProfileReader::Caps ProfileReader::CapsOf(const KeyFileGroup& group, std::string_view key)
{
    const auto* entry = group.Find(key);
    if (!entry || entry->value.empty())
        return {};
    try
    {
        const auto alternatives = ReadCaps(entry->value);
        if (alternatives.size() > 1)
            m_target.Change(SourceOf(group, key),
                            "the first of " + std::to_string(alternatives.size()) + " alternatives is taken");
        return alternatives.front();
    }
    catch (const Failure& failure)
    {
        m_target.LeaveOut(SourceOf(group, key), failure.what());
        return {};
    }
}

const KeyFileGroup* ProfileReader::FirstOf(std::string_view type) const
{
    const auto found = std::ranges::find_if(m_streams, [type](const KeyFileGroup* stream)
                                            { return stream->ValueOf("type") == type; });
    return found == m_streams.end() ? nullptr : *found;
}

// A profile that is a stream itself is put into a container of its own.
bool ProfileReader::MakeContainer()
{
    const auto source = SourceOf(m_profile, "format");
    const auto caps = CapsOf(m_profile, "format");
    if (!caps)
        return m_target.LeaveOut(source, "the profile names no format"), false;
    auto container = GStreamerContainer(*caps, FirstOf("video") != nullptr);
    const auto codec = GStreamerCodec(*caps);
    if (m_streams.empty() && !codec.empty() && !GStreamerContainerOf(codec).empty())
    {
        container = GStreamerContainerOf(codec);
        m_streams.push_back(&m_profile);
    }
    if (container.empty())
        m_target.LeaveOut(source, "no container here is " + Quoted(caps->media));
    return !container.empty() && m_target.MakeFor(source, container);
}

void ProfileReader::ReadStream(const KeyFileGroup& stream, bool isVideo)
{
    const auto source = SourceOf(stream, "format");
    const auto* key = isVideo ? "video-codecs" : "audio-codecs";
    const auto caps = CapsOf(stream, "format");
    const auto codec = caps ? GStreamerCodec(*caps) : std::string();
    if (codec.empty() || !m_target.Set(source, key, codec))
    {
        if (codec.empty())
            m_target.LeaveOut(source, caps ? "no codec here is " + Quoted(caps->media)
                                           : "the stream names no format");
        m_target.Set(source, key, "none");
        return;
    }
    ReadFields(stream, *caps, "format", isVideo);
    if (const auto restriction = CapsOf(stream, "restriction"))
        ReadFields(stream, *restriction, "restriction", isVideo);
    if (&stream != &m_profile)
        FindTheRest(stream, {"parent", "type", "format", "restriction", "name", "description"});
}

void ProfileReader::ReadFields(const KeyFileGroup& stream, const StreamCaps& caps, std::string_view key,
                               bool isVideo)
{
    const auto source = SourceOf(stream, key);
    if (isVideo)
        ReadSizes(source, caps);
    for (const auto& field : caps.fields)
        if (const bool isSize = isVideo && (field.name == "width" || field.name == "height");
            !isSize && !IsOfTheCodec(field.name) &&
            !ReadField({source.member + '.' + field.name, source.offset}, field, isVideo))
            m_target.LeaveOut({source.member + '.' + field.name, source.offset},
                              "nothing here is " + Quoted(field.name));
}

std::string Lowest(const CapsValue& value) { return value.texts.front(); }
std::string Highest(const CapsValue& value)
{
    return value.kind == Kind::Range ? value.texts[1] : value.texts.front();
}

bool IsEmpty(const CapsValue& value)
{
    return IntegerOf(Lowest(value)).value_or(0) > IntegerOf(Highest(value)).value_or(0);
}

void ProfileReader::ReadSizes(const ImportSource& source, const StreamCaps& caps)
{
    const auto* width = caps.Find("width");
    const auto* height = caps.Find("height");
    if (!width && !height)
        return;
    const ImportSource member{source.member + (width ? ".width" : ".height"), source.offset};
    if (!width || !height)
        return m_target.LeaveOut(member, "a bound of one side bounds nothing here");
    if (width->kind == Kind::Choice || height->kind == Kind::Choice)
        m_target.Change(member, "the first of several sizes is taken");
    const bool isRange = width->kind == Kind::Range || height->kind == Kind::Range;
    if (isRange && (IsEmpty(*width) || IsEmpty(*height)))
        return m_target.LeaveOut(member, "the range is empty");
    m_target.Set(member, isRange ? "max-size" : "resolution", Highest(*width) + 'x' + Highest(*height));
    if (isRange)
        ReadLeastSize(member, Lowest(*width) + 'x' + Lowest(*height));
}

void ProfileReader::ReadLeastSize(const ImportSource& source, const std::string& size)
{
    const auto least = SizeOf(size);
    if (least && (least->first > 1 || least->second > 1))
        m_target.Set(source, "min-size", size);
}

bool ProfileReader::ReadField(const ImportSource& source, const CapsField& field, bool isVideo)
{
    const auto known = std::ranges::find_if(kFields, [&](const Field& row)
                                            { return row.isVideo == isVideo && row.name == field.name; });
    if (known == kFields.end())
        return false;
    SetOne(source, *known, field.value);
    return true;
}

// There is one current value, not a range of them.
void ProfileReader::SetOne(const ImportSource& source, const Field& field, const CapsValue& value)
{
    if (value.kind == Kind::Range)
        return m_target.LeaveOut(source, "a range has no place here; the source's value is taken");
    if (value.texts.front() == "0/1")
        return; // a rate that varies, as the source's does
    if (value.texts.size() > 1)
        m_target.Change(source, "the first of " + std::to_string(value.texts.size()) + " values is taken");
    m_target.Set(source, field.key, field.ours(value.texts.front()));
}

void ProfileReader::FindTheRest(const KeyFileGroup& group, const std::set<std::string_view>& read)
{
    for (const auto& entry : group.entries)
    {
        const auto value = Folded(entry.value);
        const bool isNeutral =
            value.empty() || value == "0" || value == "false" || (entry.key == "presence" && value == "1") ||
            entry.key == "variableframerate" || (entry.key == "enabled" && value == "true");
        if (isNeutral || read.contains(entry.key))
            continue;
        const bool isTranslation = entry.key.ends_with(']');
        m_target.LeaveOut(SourceOf(group, entry.key), isTranslation ? kOneLanguage : kElement);
    }
}

} // namespace

void ReadGStreamerProfile(const KeyFileGroup& profile, std::vector<const KeyFileGroup*> streams,
                          ImportedPreset& target)
{
    ProfileReader(profile, std::move(streams), target).Read();
}

} // namespace Vexlor::Tool
