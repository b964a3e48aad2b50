#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXJsonDocument.h"
#include "runtime/foundation/VXJsonIndex.h"
#include "runtime/foundation/VXJsonScan.h"
#include "runtime/foundation/VXLargePages.h"

#include <new>
#include <utility>

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

// The slow way, for texts that were refused.
std::string FaultOf(std::string_view text)
{
    const JsonScan scan = ScanJson(text);
    if (scan.reason.empty())
        return JsonPlace(text, text.size()) + ": not valid JSON";
    return JsonPlace(text, scan.offset) + ": " + scan.reason;
}

std::string CopyWithRoom(std::string_view text)
{
    std::string copy;
    copy.reserve(text.size() + kJsonRoom);
    UseLargePages(copy.data(), copy.capacity());
    copy = text;
    return copy;
}

template <class MakeText>
Value Parse(std::size_t size, std::string* error, const MakeText& makeText)
{
    if (size > VXJsonIndex::kMostBytes)
        return Fail(error, "1:1: the document is larger than 4 GiB");
    try
    {
        return ParseOwnJson(makeText(), error);
    }
    catch (const std::bad_alloc&)
    {
        return Fail(error, "1:1: not enough memory");
    }
}

} // namespace

Value ParseOwnJson(std::string text, std::string* error)
{
    if (text.starts_with("\xEF\xBB\xBF"))
        text.erase(0, 3); // a byte order mark
    const auto document = std::make_shared<VXJsonDocument>();
    return document->Read(std::move(text)) ? document->Root() : Fail(error, FaultOf(document->Text()));
}

Value ParseJsonInPlace(std::string text, std::string* error)
{
    return Parse(text.size(), error, [&text] { return std::move(text); });
}

Value ParseJson(std::string_view text, std::string* error)
{
    return Parse(text.size(), error, [text] { return CopyWithRoom(text); });
}

} // namespace Vexlor
