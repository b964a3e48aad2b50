#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXJsonDocument.h"
#include "runtime/foundation/VXJsonScan.h"

namespace Vexlor
{

namespace
{

using Value = std::shared_ptr<const IVXJsonValue>;

Value Fail(std::string* error, std::string message)
{
    if (error)
        *error = std::move(message);
    return {};
}

// simdjson refuses integers beyond 64 bits, but not the same number with a fraction.
simdjson::padded_string WithFractions(std::string_view text, const std::vector<std::size_t>& ends)
{
    std::string result;
    result.reserve(text.size() + 2 * ends.size());
    std::size_t from = 0;
    for (const std::size_t end : ends)
    {
        result.append(text, from, end - from).append(".0");
        from = end;
    }
    result.append(text, from);
    return simdjson::padded_string(result);
}

// The slow way, for texts that the parser refused: finds the reason, or what makes the text acceptable.
Value ParseCarefully(std::string_view text, simdjson::error_code refusal, std::string* error)
{
    if (refusal == simdjson::MEMALLOC)
        return Fail(error, "1:1: not enough memory");
    const JsonScan scan = ScanJson(text);
    if (!scan.reason.empty())
        return Fail(error, JsonPlace(text, scan.offset) + ": " + scan.reason);
    const auto document = std::make_shared<VXJsonDocument>();
    const auto fractions = WithFractions(text, scan.longIntegers);
    if (document->Parse(fractions.data(), fractions.size()) != simdjson::SUCCESS)
        return Fail(error, JsonPlace(text, text.size()) + ": not valid JSON");
    return document->Root();
}

} // namespace

Value ParsePadded(const simdjson::padded_string& padded, std::string* error)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    std::string_view text = padded;
    if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark)
        text.remove_prefix(kByteOrderMark.size());
    const auto document = std::make_shared<VXJsonDocument>();
    const auto refusal = document->Parse(text.data(), text.size());
    return refusal == simdjson::SUCCESS ? document->Root() : ParseCarefully(text, refusal, error);
}

Value ParseJson(std::string_view text, std::string* error)
{
    if (text.size() > simdjson::SIMDJSON_MAXSIZE_BYTES)
        return Fail(error, "1:1: the document is larger than 4 GiB");
    return ParsePadded(simdjson::padded_string(text), error);
}

} // namespace Vexlor
