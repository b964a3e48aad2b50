#pragma once

#include "IVXJsonValue.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{

/// The document that a well-formed JSON text describes: Json(R"({"width": 1})"). Throws std::invalid_argument
/// with the position for anything else.
std::shared_ptr<IVXJsonValue> Json(std::string_view text);

/// A value as compact text, members in their order: `{"width":1280,"height":720}`. A number from a document
/// is written as it stood there. "none" for an empty handle.
std::string Text(const std::shared_ptr<const IVXJsonValue>& value);

/// Names of an object's members in their order; empty for every other kind.
std::vector<std::string> MemberNames(const std::shared_ptr<const IVXJsonValue>& value);

} // namespace Vexlor
