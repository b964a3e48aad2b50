#pragma once

extern "C"
{
#include <libavformat/avio.h>
}

#include <chrono>
#include <cstdint>
#include <fstream>
#include <memory>
#include <string>

namespace Vexlor
{

/// A regular file for libavformat to read through, and nothing but that file: no pipe that may never answer,
/// no name that means a protocol.
///
/// Every read counts against a budget, and there is a time by which all must be done, so that a file made to
/// be read for ever ends like one cut off.
class BoundedFile final
{
public:
    /// Opens the file, to be read for so many bytes and seconds; Complaint tells whether it can be read.
    BoundedFile(const std::string& path, std::int64_t bytes, double seconds);
    BoundedFile(const BoundedFile&) = delete;
    BoundedFile& operator=(const BoundedFile&) = delete;
    ~BoundedFile() = default;

    /// Why the file cannot be read, in plain words; empty when it can.
    const std::string& Complaint() const { return m_complaint; }
    /// What libavformat reads through; null when the file cannot be read.
    AVIOContext* IO() const { return m_io.get(); }
    /// The file's size when it was opened, in bytes.
    std::int64_t Size() const { return m_size; }
    /// True when the budget is used up.
    bool Exhausted() const { return m_budget <= 0; }
    /// True when the time is over.
    bool IsLate() const { return Clock::now() >= m_deadline; }

private:
    using Clock = std::chrono::steady_clock;

    std::string Open(const std::string& path);
    bool MallocIO();
    int Read(std::uint8_t* bytes, int count);
    std::int64_t Seek(std::int64_t offset, int whence);
    static int ReadFile(void* file, std::uint8_t* bytes, int count);
    static std::int64_t SeekFile(void* file, std::int64_t offset, int whence);

    struct FreeIO
    {
        void operator()(AVIOContext* io) const;
    };

    std::ifstream m_stream;
    std::int64_t m_size = 0;
    std::int64_t m_budget;
    Clock::time_point m_deadline;
    std::unique_ptr<AVIOContext, FreeIO> m_io;
    std::string m_complaint;
};

} // namespace Vexlor
