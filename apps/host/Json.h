#pragma once

#include "IVXJsonValue.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Vexlor::Tool
{

using Json = std::shared_ptr<IVXJsonValue>;

/// A number as an element of an array.
Json JsonElement(std::int64_t number);
/// A text as an element of an array.
Json JsonElement(const std::string& text);
/// Both numbers as elements of an array: a fraction, a size.
std::vector<Json> JsonElements(int first, int second);

/// Every entry as an element of an array, made by make.
template <typename Entries, typename Make>
std::vector<Json> JsonElements(const Entries& entries, Make make)
{
    std::vector<Json> elements;
    elements.reserve(entries.size());
    for (const auto& entry : entries)
        elements.push_back(make(entry));
    return elements;
}

/// Every text as an element of an array.
std::vector<Json> JsonElements(const std::vector<std::string>& texts);
/// Both numbers as an array that is itself an element of one.
Json JsonPair(int first, int second);

/// The value as a text for programs, with its last line's end.
std::string JsonDocument(const IVXJsonValue& value);
/// The same of an array.
std::string JsonDocument(const std::vector<Json>& elements);

} // namespace Vexlor::Tool
