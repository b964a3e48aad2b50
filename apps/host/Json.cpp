#include "Json.h"

#include "Failure.h"

#include "runtime/foundation/VXJson.h"

namespace Vexlor::Tool
{

namespace
{

constexpr std::string_view kBox = "value";

/// What stands in the box. Values know only members to be set, so whatever is no object comes out of one.
std::shared_ptr<const IVXJsonValue> Unboxed(const IVXJsonValue& box) { return box[kBox]; }

/// The same, for an array to share. Nobody writes to it.
Json Shared(const IVXJsonValue& box) { return std::const_pointer_cast<IVXJsonValue>(Unboxed(box)); }

} // namespace

Json JsonElement(std::int64_t number)
{
    const auto box = IVXJsonValue::JsonValueNull();
    box->SetValueInt64(kBox, number);
    return Shared(*box);
}

Json JsonElement(const std::string& text)
{
    const auto box = IVXJsonValue::JsonValueNull();
    box->SetValueString(kBox, text);
    return Shared(*box);
}

std::vector<Json> JsonElements(int first, int second) { return {JsonElement(first), JsonElement(second)}; }

std::vector<Json> JsonElements(const std::vector<std::string>& texts)
{
    return JsonElements(texts, [](const std::string& text) { return JsonElement(text); });
}

Json JsonPair(int first, int second)
{
    const auto box = IVXJsonValue::JsonValueNull();
    box->SetValueArray(kBox, JsonElements(first, second));
    return Shared(*box);
}

std::string JsonDocument(const IVXJsonValue& value)
{
    auto text = JsonText(value, JsonStyle::Indented);
    if (text.empty())
        throw Failure("nested too deeply to be written as a document that can be read again");
    return text += '\n';
}

std::string JsonDocument(const std::vector<Json>& elements)
{
    const auto box = IVXJsonValue::JsonValueNull();
    box->SetValueArray(kBox, elements);
    return JsonDocument(*Unboxed(*box));
}

} // namespace Vexlor::Tool
