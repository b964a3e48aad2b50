#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{
class IVXFormatNode;
class IVXFormatPreset;
} // namespace Vexlor

namespace Vexlor::Studio
{

/// A format preset as it is to be written.
struct PlannedPreset
{
    std::shared_ptr<const IVXFormatPreset> preset; ///< which one it is; its content is not looked at
    std::string text = {}; ///< what the library writes of it; empty for "as it was read"
};

/// A category as it is to be written.
struct PlannedNode
{
    std::shared_ptr<const IVXFormatNode> node; ///< which one it is
    std::string name = {};
    std::string description = {};
    int faceID = 0;
    std::vector<PlannedPreset> presets = {};
    std::vector<PlannedNode> children = {};
};

/// Tells whether a preset is as it was read, so that its text need not be made.
using IsAsRead = std::function<bool(const IVXFormatPreset& preset)>;

/// The tree as it is now, in a form that another thread may read.
PlannedNode PlanOf(const std::shared_ptr<const IVXFormatNode>& root, const IsAsRead& isAsRead);

/// A text, and what the tree was when it was read from it or written to it.
struct DocumentBasis
{
    std::string text;
    PlannedNode plan = {};
};

} // namespace Vexlor::Studio
