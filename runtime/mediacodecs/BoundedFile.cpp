#include "BoundedFile.h"

extern "C"
{
#include <libavutil/error.h>
#include <libavutil/mem.h>
}

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace Vexlor
{

namespace
{

constexpr int kBufferBytes = 1 << 16;

// Thirty years stand for ever; a negative time and one that is not a number are none.
std::chrono::milliseconds Milliseconds(double seconds)
{
    constexpr double kForEver = 1e9;
    const double bounded = seconds > 0 ? std::min(seconds, kForEver) : 0;
    return std::chrono::milliseconds(static_cast<std::int64_t>(bounded * 1000));
}

// The path's bytes are UTF-8 on every platform.
std::filesystem::path FilePath(const std::string& path) { return {std::u8string(path.begin(), path.end())}; }

std::string ComplaintAboutKind(std::filesystem::file_type type, const std::error_code& error)
{
    switch (type)
    {
    case std::filesystem::file_type::regular:
        return {};
    case std::filesystem::file_type::not_found:
        return "there is no such file";
    case std::filesystem::file_type::directory:
        return "is a directory, not a file";
    case std::filesystem::file_type::none:
        return "cannot be looked up (" + error.message() + ")";
    default:
        return "is not a regular file";
    }
}

} // namespace

BoundedFile::BoundedFile(const std::string& path, std::int64_t bytes, double seconds)
    : m_budget(bytes), m_deadline(Clock::now() + Milliseconds(seconds)), m_complaint(Open(path))
{
}

std::string BoundedFile::Open(const std::string& path)
{
    // A name with a zero byte would be opened as the name before it.
    if (path.find('\0') != std::string::npos)
        return "there is no such file";
    std::error_code error;
    const auto filePath = FilePath(path);
    auto complaint = ComplaintAboutKind(std::filesystem::status(filePath, error).type(), error);
    if (!complaint.empty())
        return complaint;
    errno = 0;
    m_stream.open(filePath, std::ios::binary);
    if (!m_stream)
        return "cannot be opened (" + std::generic_category().message(errno) + ")";
    m_size = m_stream.seekg(0, std::ios::end).tellg();
    m_stream.seekg(0);
    if (m_size <= 0)
        return "is empty";
    return MallocIO() ? "" : "there is not enough memory";
}

bool BoundedFile::MallocIO()
{
    std::unique_ptr<void, decltype(&av_free)> buffer(av_malloc(kBufferBytes), av_free);
    if (!buffer)
        return false;
    m_io.reset(avio_alloc_context(static_cast<unsigned char*>(buffer.get()), kBufferBytes, 0, this, ReadFile,
                                  nullptr, SeekFile));
    if (m_io)
        static_cast<void>(buffer.release()); // the context frees it, or the larger one that it asked for
    return m_io != nullptr;
}

void BoundedFile::FreeIO::operator()(AVIOContext* io) const
{
    av_freep(static_cast<void*>(&io->buffer));
    avio_context_free(&io);
}

int BoundedFile::Read(std::uint8_t* bytes, int count)
{
    if (Exhausted() || IsLate())
        return AVERROR_EXIT;
    m_stream.clear();
    m_stream.read(reinterpret_cast<char*>(bytes), std::min<std::int64_t>(count, m_budget));
    const auto got = static_cast<int>(m_stream.gcount());
    m_budget -= got;
    if (got > 0)
        return got;
    return m_stream.bad() ? AVERROR(EIO) : AVERROR_EOF;
}

std::int64_t BoundedFile::Seek(std::int64_t offset, int whence)
{
    if ((whence & AVSEEK_SIZE) != 0)
        return m_size;
    m_stream.clear();
    // SEEK_FORCE is only advice; libavformat turns SEEK_CUR into SEEK_SET before it calls.
    const auto from = (whence & ~AVSEEK_FORCE) == SEEK_END ? std::ios::end : std::ios::beg;
    m_stream.seekg(offset, from);
    return m_stream ? static_cast<std::int64_t>(m_stream.tellg()) : AVERROR(EINVAL);
}

int BoundedFile::ReadFile(void* file, std::uint8_t* bytes, int count)
{
    return static_cast<BoundedFile*>(file)->Read(bytes, count);
}

std::int64_t BoundedFile::SeekFile(void* file, std::int64_t offset, int whence)
{
    return static_cast<BoundedFile*>(file)->Seek(offset, whence);
}

} // namespace Vexlor
