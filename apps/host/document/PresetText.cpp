#include "PresetText.h"

#include "DocumentChanges.h"
#include "DocumentFindings.h"
#include "DocumentMeaning.h"
#include "DocumentMerge.h"
#include "DocumentPlaces.h"
#include "DocumentShape.h"
#include "Qualities.h"
#include "apps/host/Faces.h"
#include "apps/host/Failure.h"
#include "apps/host/Text.h"

#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr const char* kReplacement = "\xEF\xBF\xBD";

/// What the document's check says of a preset's errors, with the place of each.
std::vector<std::string> ErrorsOf(const std::string& preset)
{
    const auto text = "{\"formatPresetList\":[" + preset + "]}";
    const DocumentTree tree(text);
    DocumentFindings findings(tree);
    CheckShape(tree, findings);
    CheckMeaning(tree, {}, findings);
    DocumentPaths paths(tree);
    std::vector<std::string> errors;
    for (const auto& finding : findings.Sorted())
        if (finding.isError)
            errors.push_back(
                paths.InNames(finding.value) + ": " + finding.wording.what +
                (finding.wording.expected.empty() ? "" : "; expected " + finding.wording.expected));
    return errors;
}

void RefuseNewErrors(const std::string& before, const std::string& after)
{
    const auto old = ErrorsOf(before);
    for (const auto& error : ErrorsOf(after))
        if (std::ranges::find(old, error) == old.end())
            throw Failure(error);
}

std::string WithOneSetting(const std::string& preset, const std::string& key, const std::string& value,
                           std::vector<PresetSetting>& done)
{
    const auto json = ParseJson(preset);
    const auto editable = IVXFormatPreset::MallocFormatPreset(json);
    TakeUpQualities(*editable, *json);
    const auto before = JsonText(*editable->JsonValue());
    done.push_back(SetPresetValue(*editable, key, value));
    return MergedText(preset, before, JsonText(*editable->JsonValue()));
}

std::string WithMember(const std::string& object, const std::string& member, const std::string& value)
{
    const DocumentTree tree(object);
    DocumentChanges changes(tree);
    changes.SetMember(0, member, value);
    return changes.Text();
}

} // namespace

std::string WithSettings(const std::string& preset, const PresetSettings& settings,
                         std::vector<PresetSetting>& done)
{
    auto text = preset;
    for (const auto& [key, value] : settings)
    {
        RequireUtf8(value);
        text = WithOneSetting(text, key, value, done);
    }
    if (!settings.empty())
        RefuseNewErrors(preset, text);
    return text;
}

std::string WithCategorySettings(const std::string& category, const PresetSettings& settings,
                                 std::vector<PresetSetting>& done)
{
    auto text = category;
    for (const auto& [key, value] : settings)
    {
        RequireUtf8(value);
        if (key != "description" && key != "face")
            throw Failure("a category has no " + Quoted(key) + ", but description and face");
        const bool isFace = key == "face";
        const int face = isFace ? FaceOf(value) : 0;
        text = isFace ? WithMember(text, "faceID", std::to_string(face))
                      : WithMember(text, "description", JsonQuoted(value));
        done.push_back({key, isFace ? FaceText(face) : value, false});
    }
    return text;
}

std::string WithName(const std::string& object, const std::string& name)
{
    return WithMember(object, "name", JsonQuoted(name));
}

void RequireUtf8(const std::string& text)
{
    const bool isReplaced = text.find(kReplacement) == std::string::npos &&
                            JsonQuoted(text).find(kReplacement) != std::string::npos;
    if (isReplaced)
        throw Failure(Quoted(text) + " is not UTF-8");
}

} // namespace Vexlor::Tool
