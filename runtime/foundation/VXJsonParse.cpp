#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXJsonDocument.h"
#include "runtime/foundation/VXJsonScan.h"
#include "runtime/foundation/VXLargePages.h"

#include <new>
#include <utility>

namespace Vexlor
{

namespace
{

constexpr const char* kNoMemory = "1:1: not enough memory";

using Value = std::shared_ptr<const IVXJsonValue>;

Value Fail(std::string* error, std::string message)
{
    if (error)
        *error = std::move(message);
    return {};
}

// Room behind the text, which the parser reads in blocks.
std::string WithRoomFor(std::size_t size)
{
    std::string text;
    text.reserve(size + simdjson::SIMDJSON_PADDING);
    UseLargePages(text.data(), text.capacity());
    return text;
}

// simdjson refuses integers beyond 64 bits, but not the same number with a fraction.
std::string WithFractions(std::string_view text, const std::vector<std::size_t>& ends)
{
    std::string result = WithRoomFor(text.size() + 2 * ends.size());
    std::size_t from = 0;
    for (const std::size_t end : ends)
    {
        result.append(text, from, end - from).append(".0");
        from = end;
    }
    result.append(text, from);
    return result; // moved: a copy would have no room behind the text
}

// The slow way, for texts that the parser refused: finds the reason, or what makes the text acceptable.
Value ParseCarefully(std::string_view text, simdjson::error_code refusal, std::string* error)
{
    if (refusal == simdjson::MEMALLOC)
        return Fail(error, kNoMemory);
    const JsonScan scan = ScanJson(text);
    if (!scan.reason.empty())
        return Fail(error, JsonPlace(text, scan.offset) + ": " + scan.reason);
    const auto document = std::make_shared<VXJsonDocument>();
    const auto fractions = WithFractions(text, scan.longIntegers);
    if (document->Parse(fractions) != simdjson::SUCCESS)
        return Fail(error, JsonPlace(text, text.size()) + ": not valid JSON");
    return document->Root();
}

} // namespace

Value ParsePadded(std::string_view text, std::string* error)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark)
        text.remove_prefix(kByteOrderMark.size());
    const auto document = std::make_shared<VXJsonDocument>();
    const auto refusal = document->Parse(text);
    return refusal == simdjson::SUCCESS ? document->Root() : ParseCarefully(text, refusal, error);
}

Value ParseJson(std::string_view text, std::string* error)
{
    if (text.size() > simdjson::SIMDJSON_MAXSIZE_BYTES)
        return Fail(error, "1:1: the document is larger than 4 GiB");
    try
    {
        return ParsePadded(WithRoomFor(text.size()).append(text), error);
    }
    catch (const std::bad_alloc&)
    {
        return Fail(error, kNoMemory);
    }
}

} // namespace Vexlor
