#include "runtime/foundation/VXFile.h"
#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXJsonDocument.h"
#include "runtime/foundation/VXLargePages.h"

#include <algorithm>
#include <new>

namespace Vexlor
{

namespace
{

struct Content
{
    std::string bytes; // those of the file and, behind them, room for the parser
    std::size_t size = 0;
};

constexpr std::size_t kMostBytes = simdjson::SIMDJSON_MAXSIZE_BYTES;

// Reads to the end, which is not where the size tells in a pipe. One byte beyond the most is a sign of more.
std::error_code ReadToEnd(const VXFile& file, Content& content)
{
    constexpr std::size_t kLeast = 4096;
    std::error_code fault;
    std::size_t capacity = std::max<std::size_t>(file.Size() + 1, kLeast);
    for (;; capacity = std::min(2 * capacity, kMostBytes + 1))
    {
        content.bytes.reserve(capacity + simdjson::SIMDJSON_PADDING);
        UseLargePages(content.bytes.data(), content.bytes.capacity());
        content.bytes.resize(capacity + simdjson::SIMDJSON_PADDING);
        const std::size_t room = capacity - content.size;
        const std::size_t count = file.ReadAt(content.size, content.bytes.data() + content.size, room, fault);
        content.size += count;
        if (count < room || capacity > kMostBytes)
            return fault;
    }
}

// Answers why not; empty after a success.
std::string ReadContent(const std::string& path, Content& content)
{
    VXFile file;
    if (const auto fault = file.Open(PathOf(path), FileAccess::Read))
        return fault.message();
    if (file.Size() <= kMostBytes)
        if (const auto fault = ReadToEnd(file, content))
            return fault.message();
    const bool isTooLarge = file.Size() > kMostBytes || content.size > kMostBytes;
    return isTooLarge ? "larger than 4 GiB" : "";
}

std::shared_ptr<const IVXJsonValue> Read(const std::string& path, std::string& fault)
{
    Content content;
    const std::string reason = ReadContent(path, content);
    if (!reason.empty())
    {
        fault = path + ": " + reason;
        return {};
    }
    auto value = ParsePadded({content.bytes.data(), content.size}, &fault);
    if (!value)
        fault.insert(0, path + ':');
    return value;
}

} // namespace

std::shared_ptr<const IVXJsonValue> ReadJsonFile(const std::string& path, std::string* error)
{
    std::string fault;
    std::shared_ptr<const IVXJsonValue> value;
    try
    {
        value = Read(path, fault);
    }
    catch (const std::bad_alloc&)
    {
        fault = path + ": not enough memory";
    }
    if (error && !value)
        *error = fault;
    return value;
}

} // namespace Vexlor
