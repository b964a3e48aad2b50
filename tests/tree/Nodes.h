#pragma once

#include "IVXFormatNode.h"
#include "IVXJsonValue.h"

#include "tests/platform/ScriptedJson.h"
#include "tests/platform/ScriptedPlatform.h"
#include "tests/tree/NodeLists.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

namespace Vexlor
{

using Node = std::shared_ptr<IVXFormatNode>;

/// A node of nothing, as it writes itself.
inline constexpr const char* kEmpty =
    R"({"name":"","description":"","faceID":0,"formatPresetList":[],"childList":[]})";

inline Node Root(const std::string& name = {}) { return ChildFamily::Make(name); }

inline Node Child(const Node& parent, const std::string& name)
{
    auto node = IVXFormatNode::MallocFormatNode(parent);
    node->SetName(name);
    return node;
}

inline Node Load(std::string_view json) { return IVXFormatNode::MallocFormatNode(Json(json)); }

class FormatNode : public testing::Test
{
protected:
    ScriptedPlatform platform;
};

} // namespace Vexlor
