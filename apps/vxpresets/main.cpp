#include "CommandLine.h"
#include "apps/host/Failure.h"
#include "apps/host/Text.h"

#include "runtime/foundation/VXLogSink.h"

#include <cerrno>
#include <cstdio>
#include <new>
#include <system_error>

namespace Vexlor::Tool
{

namespace
{

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

void Complain(const std::string& message)
{
    static_cast<void>(std::fputs((OneLine(message) + '\n').c_str(), stderr));
}

/// The library's log lines as complaints: a line each, whether they bring their ends or not.
void ComplainOfLog(IVXLogConfig::LogLevel, std::string_view text)
{
    while (text.ends_with('\n'))
        text.remove_suffix(1);
    Complain("vxpresets: " + std::string(text));
}

std::string Answer(int argc, const char* const* argv)
{
    const auto line = ReadCommandLine(argc, argv);
    if (!line.text.empty())
        return line.text;
    const auto catalogue = line.request.needsCatalogue ? LoadCatalogue(line.request.document) : Catalogue();
    return line.request.command(line.request, catalogue, StyleOfStandardOutput());
}

void Print(const std::string& text)
{
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (!isWritten || std::fflush(stdout) != 0)
        throw Failure("vxpresets: standard output: " + std::generic_category().message(errno));
}

int PrintAnswer(int argc, const char* const* argv)
{
    try
    {
        Print(Answer(argc, argv));
        return kDone;
    }
    catch (const BadAnswer& answer)
    {
        Print(answer.what());
        return kFailed;
    }
}

int Fail(const std::string& message, int code)
{
    Complain(message);
    return code;
}

int Main(int argc, const char* const* argv)
{
    SetLogSink(ComplainOfLog);
    try
    {
        return PrintAnswer(argc, argv);
    }
    catch (const WrongUsage& error)
    {
        return Fail(std::string("vxpresets: ") + error.what(), kWrongUsage);
    }
    catch (const Failure& failure)
    {
        return Fail(failure.what(), kFailed);
    }
    catch (const std::bad_alloc&)
    {
        return Fail("vxpresets: not enough memory", kFailed);
    }
}

} // namespace

} // namespace Vexlor::Tool

int main(int argc, char** argv) { return Vexlor::Tool::Main(argc, argv); }
