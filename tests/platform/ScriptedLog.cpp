#include "IVXLogConfig.h"

#include "tests/platform/ScriptedPlatform.h"

#include <array>
#include <cstdarg>
#include <cstdio>

namespace Vexlor
{

namespace
{

int Write(std::optional<IVXLogConfig::LogLevel> level, const char* format, std::va_list arguments)
{
    std::array<char, 4096> text{};
    const int length = std::vsnprintf(text.data(), text.size(), format, arguments);
    if (auto* platform = ScriptedPlatform::Current())
        platform->AddLog({level, text.data()});
    return length;
}

} // namespace

int IVXLogConfig::Printf(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const int length = Write({}, format, arguments);
    va_end(arguments);
    return length;
}

int IVXLogConfig::Printf(LogLevel level, const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const int length = Write(level, format, arguments);
    va_end(arguments);
    return length;
}

} // namespace Vexlor
