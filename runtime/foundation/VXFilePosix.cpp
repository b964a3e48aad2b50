#include "runtime/foundation/VXFile.h"

#ifndef _WIN32

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace Vexlor
{

static_assert(sizeof(off_t) == sizeof(std::int64_t), "files beyond 2 GiB need _FILE_OFFSET_BITS=64");

namespace
{

std::error_code LastFault() { return {errno, std::generic_category()}; }

int FlagsOf(FileAccess access)
{
    switch (access)
    {
    case FileAccess::Write:
        return O_WRONLY | O_CREAT | O_TRUNC;
    case FileAccess::ReadWrite:
        return O_RDWR | O_CREAT;
    case FileAccess::New:
        return O_WRONLY | O_CREAT | O_EXCL;
    default:
        return O_RDONLY;
    }
}

bool IsFolder(int file)
{
    struct stat status = {};
    return ::fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

std::error_code VXFile::Open(const std::filesystem::path& path, FileAccess access)
{
    constexpr mode_t kAllMayReadAndWrite = 0666; // less what the user's mask takes away
    Close();
    if (path.native().find('\0') != std::string::npos)
        return std::make_error_code(std::errc::invalid_argument);
    do
        m_file = ::open(path.c_str(), FlagsOf(access) | O_CLOEXEC, kAllMayReadAndWrite);
    while (m_file < 0 && errno == EINTR);
    if (m_file < 0)
        return LastFault();
    if (!IsFolder(m_file))
        return {};
    Close();
    return std::make_error_code(std::errc::is_a_directory);
}

std::error_code VXFile::Close()
{
    const int file = std::exchange(m_file, -1);
    return file < 0 || ::close(file) == 0 ? std::error_code() : LastFault();
}

std::int64_t VXFile::ReadSome(std::uint64_t offset, void* bytes, std::size_t size) const
{
    const auto count = ::pread(m_file, bytes, size, static_cast<off_t>(offset));
    return count < 0 && errno == ESPIPE ? ::read(m_file, bytes, size) : count;
}

std::int64_t VXFile::WriteSome(std::uint64_t offset, const void* bytes, std::size_t size) const
{
    return ::pwrite(m_file, bytes, size, static_cast<off_t>(offset));
}

std::uint64_t VXFile::Size() const
{
    struct stat status = {};
    const bool isOrdinary = ::fstat(m_file, &status) == 0 && S_ISREG(status.st_mode);
    return isOrdinary ? static_cast<std::uint64_t>(status.st_size) : 0;
}

std::error_code VXFile::Sync() const { return ::fsync(m_file) == 0 ? std::error_code() : LastFault(); }

void SyncFolder(const std::filesystem::path& folder)
{
    const int file = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (file < 0)
        return;
    ::fsync(file);
    ::close(file);
}

} // namespace Vexlor

#endif
