#include "EditCommands.h"

#include "apps/host/Failure.h"
#include "apps/host/Json.h"
#include "apps/host/Text.h"
#include "apps/host/document/DocumentSave.h"
#include "apps/host/document/PresetCodecs.h"
#include "runtime/foundation/VXJson.h"

#include "IVXFormatPreset.h"
#include "VXMediaCodecs.h"

#include <algorithm>
#include <functional>

namespace Vexlor::Tool
{

namespace
{

using Outcomes = std::vector<EditOutcome>;

PresetSettings SettingsOf(const EditRequest& request)
{
    PresetSettings settings;
    for (const auto& text : request.settings)
        settings.push_back(KeyAndValue(text));
    return settings;
}

std::string SettingText(const PresetSetting& setting)
{
    return "  " + setting.key + ": " + OneLine(setting.value) + (setting.isAdded ? ", new in the list" : "") +
           '\n';
}

std::string OutcomeText(const std::string& file, const EditOutcome& outcome)
{
    const auto from =
        outcome.from.empty() ? "" : outcome.from + (outcome.action == "cloned" ? " as " : " to ");
    std::string text = OneLine(file + ": " + outcome.action + ' ' + from + outcome.path) + '\n';
    for (const auto& setting : outcome.settings)
        text += SettingText(setting);
    return text;
}

Json SettingJson(const PresetSetting& setting)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("key", setting.key);
    json->SetValueString("value", setting.value);
    json->SetValueBool("added", setting.isAdded);
    return json;
}

Json OutcomeJson(const EditOutcome& outcome)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("action", outcome.action);
    json->SetValueString("path", outcome.path);
    json->SetValueString("from", outcome.from);
    json->SetValueArray("settings", JsonElements(outcome.settings, SettingJson));
    return json;
}

/// Makes the changes and tells them.
std::string Edited(const Request& request, const std::function<Outcomes(DocumentEdit& edit)>& change)
{
    Outcomes outcomes;
    const auto& file = request.edit.document;
    const DocumentSaving saving{request.command == EditAddCommand, request.edit.keepsBackup};
    ChangeDocument(file, saving,
                   [&](const std::string& text)
                   {
                       DocumentEdit edit(text);
                       outcomes = change(edit);
                       return edit.Text();
                   });
    return ChangesText(request, file, outcomes);
}

/// The text of what a preset is made of.
std::string NewPreset(const EditRequest& request)
{
    if (request.preset)
    {
        const auto catalogue = LoadCatalogue(request.source);
        return JsonText(*FindPreset(catalogue, *request.preset).preset->JsonValue(), JsonStyle::Indented);
    }
    const auto preset = IVXFormatPreset::MallocFormatPreset(*request.container, {});
    if (!preset)
        throw Failure("no container " + Quoted(*request.container) + "; there are " +
                      Joined(VXMediaCodecSupportOutputAllMediaFormats(), ", "));
    return JsonText(*preset->JsonValue(), JsonStyle::Indented);
}

} // namespace

std::string ChangesText(const Request& request, const std::string& file, const Outcomes& outcomes)
{
    if (request.asJson)
    {
        const auto json = IVXJsonValue::JsonValueNull();
        json->SetValueString("file", file);
        json->SetValueArray("changes", JsonElements(outcomes, OutcomeJson));
        return JsonDocument(*json);
    }
    std::string text;
    for (const auto& outcome : outcomes)
        text += OutcomeText(file, outcome);
    return text;
}

std::string EditAddCommand(const Request& request, const Catalogue&, const Style&)
{
    const auto& wanted = request.edit;
    const int kinds = (wanted.isCategory ? 1 : 0) + (wanted.container ? 1 : 0) + (wanted.preset ? 1 : 0);
    if (kinds != 1)
        throw WrongUsage("one of --category, --container and --from is required");
    const auto& path = wanted.path;
    return Edited(
        request,
        [&](DocumentEdit& edit) -> Outcomes
        {
            const auto settings = SettingsOf(wanted);
            if (wanted.isCategory)
                return {edit.AddCategory(path, settings, wanted.place, wanted.mayMakeParents)};
            return {edit.AddPreset(path, NewPreset(wanted), settings, wanted.place, wanted.mayMakeParents)};
        });
}

std::string EditRemoveCommand(const Request& request, const Catalogue&, const Style&)
{
    return Edited(request,
                  [&](DocumentEdit& edit)
                  {
                      Outcomes outcomes;
                      for (const auto& path : request.edit.paths)
                          outcomes.push_back(edit.Remove(path, request.edit.mayHoldMore));
                      return outcomes;
                  });
}

std::string EditMoveCommand(const Request& request, const Catalogue&, const Style&)
{
    const auto& wanted = request.edit;
    return Edited(request,
                  [&](DocumentEdit& edit) -> Outcomes
                  { return {edit.Move(wanted.path, wanted.into, wanted.place)}; });
}

std::string EditRenameCommand(const Request& request, const Catalogue&, const Style&)
{
    return Edited(request,
                  [&](DocumentEdit& edit) -> Outcomes
                  { return {edit.Rename(request.edit.path, *request.edit.name)}; });
}

std::string EditCloneCommand(const Request& request, const Catalogue&, const Style&)
{
    const auto& wanted = request.edit;
    return Edited(request,
                  [&](DocumentEdit& edit) -> Outcomes
                  { return {edit.Clone(wanted.path, wanted.into, wanted.name, SettingsOf(wanted))}; });
}

std::string EditSetCommand(const Request& request, const Catalogue&, const Style&)
{
    return Edited(request,
                  [&](DocumentEdit& edit) -> Outcomes
                  { return {edit.Set(request.edit.path, SettingsOf(request.edit))}; });
}

} // namespace Vexlor::Tool
