#pragma once

#include "VXFoundationExport.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace Vexlor
{

class IVXJsonValue;

/// How deep arrays and objects may be nested in a text.
inline constexpr int kJsonMaxDepth = 1024;

/// The layout of a JSON text that is written.
enum class JsonStyle
{
    Compact,  ///< on one line, without blanks
    Indented, ///< a line for each member and element, two blanks a level up to 64, ": " after names
};

/// Reads a JSON text of at most 4 GiB: UTF-8, with or without a byte order mark.
///
/// The values are views into the document, which lives as long as any handle into it; looking one up
/// allocates nothing, but for a handle to a scalar member. Where an object has several members of one name,
/// the first is the one that is found. An integer that needs more than 64 bits reads as a floating-point
/// number. Any number of threads may read a document.
///
/// Answers an empty handle when the text cannot be read; error, where given, then tells "line:column:
/// reason". Both count from 1; a column is one character, a tab too. error is left alone after a success.
VX_FOUNDATION_API std::shared_ptr<const IVXJsonValue> ParseJson(std::string_view text,
                                                                std::string* error = nullptr);

/// With so many bytes of capacity to spare, a text is not copied by ParseJsonInPlace.
inline constexpr std::size_t kJsonRoom = 64;

/// As ParseJson, but the values stand in the text itself, which is handed over.
VX_FOUNDATION_API std::shared_ptr<const IVXJsonValue> ParseJsonInPlace(std::string text,
                                                                       std::string* error = nullptr);

/// Reads the JSON file of that UTF-8 path, as ParseJson; errors read "path:line:column: reason", or
/// "path: reason" when the file itself cannot be read.
VX_FOUNDATION_API std::shared_ptr<const IVXJsonValue> ReadJsonFile(const std::string& path,
                                                                   std::string* error = nullptr);

/// The value as JSON text without a line end behind it. Integers are exact, floating-point numbers the
/// shortest text that reads back the same, bytes that are not UTF-8 are replaced by U+FFFD.
///
/// A value of another implementation than this library's is written as null. A built value that is deeper
/// than a text that can be read, as one that was set below itself, has no text: the answer is empty.
VX_FOUNDATION_API std::string JsonText(const IVXJsonValue& value, JsonStyle style = JsonStyle::Compact);

} // namespace Vexlor
