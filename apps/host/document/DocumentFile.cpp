#include "DocumentFile.h"

#include "apps/host/Failure.h"

#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace Vexlor::Tool
{

namespace
{

struct Closer
{
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

[[noreturn]] void Fail(const std::string& path)
{
    throw Failure(path + ": " + std::generic_category().message(errno));
}

// To the end, which is not where the size tells in a pipe.
std::string ReadToEnd(std::FILE* file, const std::string& path)
{
    constexpr std::size_t kLeastStep = std::size_t{64} << 10U;
    constexpr std::size_t kMostStep = std::size_t{4} << 20U; // a small file does not pay for as much
    constexpr std::size_t kMostBytes = std::size_t{1} << 32U;
    std::error_code unknown;
    const std::uintmax_t told = std::filesystem::file_size(path, unknown);
    const auto known = unknown ? 0 : std::min<std::size_t>(told, kMostBytes);
    const auto step = std::clamp(known + 1, kLeastStep, kMostStep);
    std::string text;
    text.reserve(known + step); // or a long text is copied as it grows
    std::size_t size = 0;
    for (std::size_t count = 1; count > 0 && size <= kMostBytes; size += count)
    {
        text.resize(size + step);
        count = std::fread(text.data() + size, 1, step, file);
    }
    if (std::ferror(file) != 0)
        Fail(path);
    text.resize(size);
    return text;
}

} // namespace

std::string ReadWholeFile(const std::string& path)
{
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(path.c_str(), "rb"));
    if (!file)
        Fail(path);
    return ReadToEnd(file.get(), path);
}

std::string ReadDocumentText(const std::string& path)
{
    auto text = ReadWholeFile(path);
    if (text.starts_with(kByteOrderMark))
        text.erase(0, kByteOrderMark.size());
    return text;
}

// The loader tells "line:column: reason".
std::optional<SyntaxFault> SyntaxFaultOf(std::string_view text)
{
    std::string error;
    if (ParseJson(text, &error))
        return {};
    SyntaxFault fault;
    const auto* end = error.data() + error.size();
    const auto line = std::from_chars(error.data(), end, fault.place.line);
    const auto column = std::from_chars(line.ptr + 1, end, fault.place.column);
    fault.reason.assign(column.ptr + 2, end);
    return fault;
}

} // namespace Vexlor::Tool
