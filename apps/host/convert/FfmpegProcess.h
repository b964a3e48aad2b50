#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace Vexlor::Tool
{

/// The ffmpeg program at work. It is stopped with the object, if it still runs.
class FfmpegProcess final
{
public:
    /// Starts the program that PATH names, with nothing on its standard input, apart from the signals that a
    /// terminal sends. Throws Failure where there is none.
    explicit FfmpegProcess(const std::vector<std::string>& arguments);
    ~FfmpegProcess();
    FfmpegProcess(const FfmpegProcess&) = delete;
    FfmpegProcess& operator=(const FfmpegProcess&) = delete;

    /// Waits for output, for at most a tenth of a second; false when all has been read. A signal ends the
    /// wait.
    bool Wait();
    /// The lines of standard output since the last call.
    std::vector<std::string> TakeLines();
    /// The last lines of standard error.
    std::vector<std::string> Messages() const;
    /// Asks it to end, makes it end after two seconds, and waits for it.
    void Stop();
    /// Waits for its end; true when it says that all went well.
    bool Finish();
    /// Why it failed, after Finish: its own words, or what ended it.
    std::string Complaint() const;

private:
    /// What is read from one of its outputs.
    struct Pipe
    {
        int file = -1;
        std::string text = {};
    };

    void Spawn(const std::vector<std::string>& arguments, int output, int errors);
    static void Read(Pipe& pipe);
    bool HasEndedWithin(int milliseconds);

    pid_t m_process = -1;
    int m_status = 0;
    Pipe m_output;
    Pipe m_errors;
};

} // namespace Vexlor::Tool
