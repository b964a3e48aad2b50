#include "runtime/foundation/VXLogSink.h"

#include <array>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace Vexlor
{

namespace
{

struct Log
{
    std::mutex mutex;
    std::shared_ptr<const VXLogSink> sink;
};

// Never destroyed: destructors of other libraries may still log while the program ends.
Log& TheLog()
{
    static auto& log = *new Log;
    return log;
}

void WriteLine(IVXLogConfig::LogLevel level, std::string_view text)
{
    std::shared_ptr<const VXLogSink> sink;
    {
        const std::lock_guard lock(TheLog().mutex);
        sink = TheLog().sink;
    }
    if (sink)
        (*sink)(level, text); // outside the lock, so that a sink may log itself
    else
        std::fwrite(text.data(), 1, text.size(), stderr);
}

int PrintArguments(IVXLogConfig::LogLevel level, const char* format, std::va_list arguments)
{
    std::va_list again;
    va_copy(again, arguments);
    std::array<char, 512> line{};
    const int length = std::vsnprintf(line.data(), line.size(), format, arguments);
    const auto size = length < 0 ? 0 : static_cast<std::size_t>(length);
    if (size >= line.size())
    {
        std::string text(size + 1, '\0');
        std::vsnprintf(text.data(), text.size(), format, again);
        WriteLine(level, std::string_view(text.data(), size));
    }
    else if (length >= 0)
        WriteLine(level, std::string_view(line.data(), size));
    va_end(again);
    return length;
}

} // namespace

int IVXLogConfig::Printf(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const int length = PrintArguments(LogLevelInfo, format, arguments);
    va_end(arguments);
    return length;
}

int IVXLogConfig::Printf(LogLevel level, const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const int length = PrintArguments(level, format, arguments);
    va_end(arguments);
    return length;
}

VXLogSink SetLogSink(VXLogSink sink)
{
    auto next = sink ? std::make_shared<const VXLogSink>(std::move(sink)) : nullptr;
    {
        const std::lock_guard lock(TheLog().mutex);
        TheLog().sink.swap(next);
    }
    return next ? *next : VXLogSink();
}

} // namespace Vexlor
