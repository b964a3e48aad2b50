#include "runtime/foundation/VXFile.h"
#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXJsonDocument.h"
#include "runtime/foundation/VXJsonIndex.h"
#include "runtime/foundation/VXLargePages.h"

#include <algorithm>
#include <new>

namespace Vexlor
{

namespace
{

constexpr std::size_t kMostBytes = VXJsonIndex::kMostBytes;

// Reads to the end, which is not where the size tells in a pipe. One byte beyond the most is a sign of more.
std::error_code ReadToEnd(const VXFile& file, std::string& content)
{
    constexpr std::size_t kLeast = 4096;
    std::error_code fault;
    std::size_t capacity = std::max<std::size_t>(file.Size() + 1, kLeast);
    for (std::size_t size = 0;; capacity = std::min(2 * capacity, kMostBytes + 1))
    {
        content.reserve(capacity + kJsonRoom);
        UseLargePages(content.data(), content.capacity());
        content.resize(capacity);
        size += file.ReadAt(size, content.data() + size, capacity - size, fault);
        content.resize(size);
        if (size < capacity || capacity > kMostBytes)
            return fault;
    }
}

// Answers why not; empty after a success.
std::string ReadContent(const std::string& path, std::string& content)
{
    VXFile file;
    if (const auto fault = file.Open(PathOf(path), FileAccess::Read))
        return fault.message();
    if (file.Size() <= kMostBytes)
        if (const auto fault = ReadToEnd(file, content))
            return fault.message();
    const bool isTooLarge = file.Size() > kMostBytes || content.size() > kMostBytes;
    return isTooLarge ? "larger than 4 GiB" : "";
}

std::shared_ptr<const IVXJsonValue> Read(const std::string& path, std::string& fault)
{
    std::string content;
    const std::string reason = ReadContent(path, content);
    if (!reason.empty())
    {
        fault = path + ": " + reason;
        return {};
    }
    auto value = ParseOwnJson(std::move(content), &fault);
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
