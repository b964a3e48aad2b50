#include "ImportGStreamer.h"

#include "GStreamerProfile.h"
#include "ImportedPreset.h"
#include "apps/host/Failure.h"
#include "apps/host/Text.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <algorithm>
#include <map>
#include <set>

namespace Vexlor::Tool
{

namespace
{

constexpr const char* kTarget = "GStreamer Encoding Target";
constexpr std::string_view kProfile = "profile-";
constexpr std::string_view kStream = "streamprofile-";

/// The names of a list that is parted by commas.
std::vector<std::string> Names(const std::string& list)
{
    std::vector<std::string> names;
    for (std::size_t begin = 0; begin < list.size();)
    {
        const auto end = std::min(list.find(',', begin), list.size());
        const auto name = list.substr(begin, end - begin);
        const auto first = name.find_first_not_of(' ');
        if (first != std::string::npos)
            names.push_back(name.substr(first, name.find_last_not_of(' ') + 1 - first));
        begin = end + 1;
    }
    return names;
}

struct Target
{
    const KeyFileGroup* group = nullptr;
    std::vector<const KeyFileGroup*> profiles = {};
    std::map<std::string, std::vector<const KeyFileGroup*>> streams = {}; ///< by the name of their profile
};

void AddOnce(std::vector<const KeyFileGroup*>& streams, const KeyFileGroup* stream)
{
    if (streams.empty() || streams.back() != stream)
        streams.push_back(stream);
}

Target TargetOf(const std::vector<KeyFileGroup>& groups)
{
    Target target;
    for (const auto& group : groups)
        if (group.name == kTarget)
            target.group = &group;
        else if (group.name.starts_with(kProfile))
            target.profiles.push_back(&group);
        else if (group.name.starts_with(kStream))
            for (const auto& parent : Names(group.ValueOf("parent")))
                AddOnce(target.streams[parent], &group);
    return target;
}

std::string NameOf(const KeyFileGroup& profile)
{
    const auto name = profile.ValueOf("name");
    return name.empty() ? profile.name.substr(kProfile.size()) : name;
}

void FindStrangers(const std::vector<KeyFileGroup>& groups, const Target& target, Import& import)
{
    ImportedPreset head(import.findings, target.group->ValueOf("name"));
    for (const auto& entry : target.group->entries)
        if (entry.key != "name" && entry.key != "description")
            head.LeaveOut({entry.key, entry.offset},
                          entry.key.ends_with(']') ? kOneLanguage : "a document has no kinds of categories");
    std::set<std::string> names;
    for (const auto* profile : target.profiles)
        names.insert(NameOf(*profile));
    for (const auto& group : groups)
    {
        ImportedPreset stranger(import.findings, group.name);
        const auto parents = Names(group.ValueOf("parent"));
        const bool isStream = group.name.starts_with(kStream);
        if (isStream &&
            std::ranges::none_of(parents, [&](const auto& parent) { return names.contains(parent); }))
            stranger.LeaveOut({{}, group.offset}, "belongs to no profile");
        else if (!isStream && group.name != kTarget && !group.name.starts_with(kProfile))
            stranger.LeaveOut({{}, group.offset}, "nothing is known of it");
    }
}

void ReadProfile(const KeyFileGroup& profile, const Target& target, IVXFormatNode& category, Import& import)
{
    const auto path = PathEscaped(category.Name()) + '/';
    const auto name = ImportedName(NameOf(profile), path, profile.offset, import.findings);
    const auto streams = target.streams.find(NameOf(profile));
    ImportedPreset preset(import.findings, path + PathEscaped(name));
    ReadGStreamerProfile(
        profile, streams == target.streams.end() ? std::vector<const KeyFileGroup*>() : streams->second,
        preset);
    if (!preset.Preset())
        return;
    preset.Preset()->SetName(name);
    category.AddFormatPreset(preset.Preset());
}

} // namespace

void ImportGStreamer(const std::string& name, std::string_view text, Import& import)
{
    std::vector<KeyFileGroup> groups;
    try
    {
        groups = ReadKeyFile(text);
    }
    catch (const Failure& failure)
    {
        throw Failure(name + ':' + failure.what());
    }
    const auto target = TargetOf(groups);
    if (!target.group)
        throw Failure(name + ": has no [" + kTarget + "]");
    if (target.profiles.size() > kMostImported)
        throw Failure(name + ": more than " + std::to_string(kMostImported) + " presets");
    const auto category = IVXFormatNode::MallocFormatNode(import.root);
    category->SetName(ImportedName(target.group->ValueOf("name"), {}, target.group->offset, import.findings));
    category->SetDescription(target.group->ValueOf("description"));
    FindStrangers(groups, target, import);
    for (const auto* profile : target.profiles)
        ReadProfile(*profile, target, *category, import);
}

} // namespace Vexlor::Tool
