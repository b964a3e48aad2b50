#include "DocumentPlan.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

namespace Vexlor::Studio
{

// As deep as the categories, which their reader bounds.
PlannedNode PlanOf(const std::shared_ptr<const IVXFormatNode>& root, const IsAsRead& isAsRead)
{
    PlannedNode plan{root, root->Name(), root->Description(), root->FaceID()};
    plan.presets.reserve(static_cast<std::size_t>(root->FormatPresetCount()));
    for (int i = 0; i < root->FormatPresetCount(); ++i)
    {
        const auto preset = root->GetFormatPreset(i);
        plan.presets.push_back({preset, isAsRead(*preset) ? "" : JsonText(*preset->JsonValue())});
    }
    for (const auto& child : root->GetChildList())
        plan.children.push_back(PlanOf(child, isAsRead));
    return plan;
}

} // namespace Vexlor::Studio
