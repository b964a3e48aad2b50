#include "runtime/foundation/VXFile.h"

#ifdef _WIN32

#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <utility>

namespace Vexlor
{

namespace
{

std::error_code LastFault() { return {errno, std::generic_category()}; }

int FlagsOf(FileAccess access)
{
    switch (access)
    {
    case FileAccess::Write:
        return _O_WRONLY | _O_CREAT | _O_TRUNC;
    case FileAccess::ReadWrite:
        return _O_RDWR | _O_CREAT;
    case FileAccess::New:
        return _O_WRONLY | _O_CREAT | _O_EXCL;
    default:
        return _O_RDONLY;
    }
}

} // namespace

std::error_code VXFile::Open(const std::filesystem::path& path, FileAccess access)
{
    Close();
    std::error_code ignored;
    if (path.native().find(L'\0') != std::wstring::npos)
        return std::make_error_code(std::errc::invalid_argument);
    if (std::filesystem::is_directory(path, ignored))
        return std::make_error_code(std::errc::is_a_directory);
    const int flags = FlagsOf(access) | _O_BINARY | _O_NOINHERIT;
    const int fault = _wsopen_s(&m_file, path.c_str(), flags, _SH_DENYNO, _S_IREAD | _S_IWRITE);
    return {fault, std::generic_category()};
}

std::error_code VXFile::Close()
{
    const int file = std::exchange(m_file, -1);
    return file < 0 || _close(file) == 0 ? std::error_code() : LastFault();
}

std::int64_t VXFile::ReadSome(std::uint64_t offset, void* bytes, std::size_t size) const
{
    if (_lseeki64(m_file, static_cast<std::int64_t>(offset), SEEK_SET) < 0 && errno != ESPIPE)
        return -1;
    return _read(m_file, bytes, static_cast<unsigned>(size));
}

std::int64_t VXFile::WriteSome(std::uint64_t offset, const void* bytes, std::size_t size) const
{
    if (_lseeki64(m_file, static_cast<std::int64_t>(offset), SEEK_SET) < 0)
        return -1;
    return _write(m_file, bytes, static_cast<unsigned>(size));
}

std::uint64_t VXFile::Size() const
{
    struct _stat64 status = {};
    const bool isOrdinary = _fstat64(m_file, &status) == 0 && (status.st_mode & _S_IFREG) != 0;
    return isOrdinary ? static_cast<std::uint64_t>(status.st_size) : 0;
}

std::error_code VXFile::Sync() const { return _commit(m_file) == 0 ? std::error_code() : LastFault(); }

void SyncFolder(const std::filesystem::path&) {} // a rename lasts here without it

} // namespace Vexlor

#endif
