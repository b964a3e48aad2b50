#include "Conversion.h"

#include "FfmpegProcess.h"
#include "OutputFile.h"
#include "apps/host/Failure.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace Vexlor::Tool
{

namespace
{

using Clock = std::chrono::steady_clock;

std::int64_t IntegerOf(std::string_view text)
{
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// Takes one of the program's lines, "name=value", of which one in a report is "progress=…".
void Update(ConversionProgress& progress, std::string_view line)
{
    constexpr double kMicroseconds = 1e6;
    const auto end = std::min(line.find('='), line.size());
    const auto name = line.substr(0, end);
    const auto value = line.substr(std::min(end + 1, line.size()));
    if (name == "out_time_us")
        progress.done = std::max(progress.done, double(IntegerOf(value)) / kMicroseconds);
    else if (name == "total_size")
        progress.bytes = std::max(progress.bytes, IntegerOf(value));
    else if (name == "speed")
        progress.speed = std::max(0.0, std::strtod(std::string(value).c_str(), nullptr));
    else if (name == "progress" && value == "end") // the last packet's time is before its own length
        progress.done = std::max(progress.done, progress.duration);
}

std::vector<std::string> ArgumentsOf(const FfmpegCommand& command)
{
    auto arguments = command.Arguments();
    const std::vector<std::string> asked{"-hide_banner", "-nostdin", "-y",        "-loglevel",
                                         "error",        "-nostats", "-progress", "pipe:1"};
    arguments.insert(arguments.begin(), asked.begin(), asked.end());
    return arguments;
}

/// False when the watch wants no more.
bool Attend(FfmpegProcess& process, double duration, const ConversionWatch& watch)
{
    ConversionProgress progress{.duration = duration};
    bool isOpen = true;
    while (isOpen)
    {
        isOpen = process.Wait();
        for (const auto& line : process.TakeLines())
            Update(progress, line);
        if (!watch(progress))
            return false;
    }
    return true;
}

/// The output's size. It is not read back, for there are files that FFmpeg writes and does not read: animated
/// WebP.
std::int64_t SizeOf(const std::string& path, const std::string& name)
{
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    if (error || size == 0)
        throw Failure(name + ": ffmpeg wrote nothing");
    return static_cast<std::int64_t>(size);
}

} // namespace

double ConversionProgress::Share() const { return duration > 0 ? std::clamp(done / duration, 0.0, 1.0) : 0; }

double ConversionProgress::Left() const
{
    return duration > 0 && speed > 0 ? std::max(duration - done, 0.0) / speed : -1;
}

ConversionResult Convert(FfmpegCommand command, const ConversionTarget& target, const ConversionWatch& watch)
{
    CheckOutput(target.output, target.source, target.overwrites);
    OutputFile file(target.output, target.overwrites);
    command.output = "file:" + file.TemporaryPath();
    const auto start = Clock::now();
    FfmpegProcess process(ArgumentsOf(command));
    ConversionResult result;
    if (!Attend(process, target.duration, watch))
    {
        process.Stop();
        result.isStopped = true;
        return result;
    }
    const bool isGood = process.Finish();
    result.messages = process.Messages();
    if (!isGood)
        throw Failure(target.output + ": ffmpeg failed: " + process.Complaint());
    result.bytes = SizeOf(file.TemporaryPath(), target.output);
    file.Keep();
    result.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    return result;
}

} // namespace Vexlor::Tool
