#pragma once

#include "VXFoundationExport.h"

#if defined(__GNUC__)
#define VX_PRINTF_LIKE(text, arguments) __attribute__((format(printf, text, arguments)))
#else
#define VX_PRINTF_LIKE(text, arguments)
#endif

namespace Vexlor
{

/// The log that both libraries write to. Where the lines go is the host's affair.
class VX_FOUNDATION_API IVXLogConfig
{
public:
    /// Severity of a log line, by consequence for the user.
    enum LogLevel : int
    {
        LogLevelDebug = 0,   ///< of interest to developers only
        LogLevelInfo = 1,    ///< the normal course of things; what Printf without a level writes
        LogLevelWarning = 2, ///< something was ignored or replaced
        LogLevelError = 3,   ///< something that was asked for could not be done
    };

    /// Writes one line, formatted as by printf; the text brings its own line end where it wants one. Answers
    /// the number of characters of the text, or a negative number when the format cannot be printed.
    static int Printf(const char* format, ...) VX_PRINTF_LIKE(1, 2);
    /// The same with a severity.
    static int Printf(LogLevel level, const char* format, ...) VX_PRINTF_LIKE(2, 3);
};

} // namespace Vexlor
