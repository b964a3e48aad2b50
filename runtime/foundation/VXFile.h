#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>

namespace Vexlor
{

enum class FileAccess
{
    Read,      ///< must exist
    Write,     ///< made, or emptied when it exists
    ReadWrite, ///< made when it does not exist
    New,       ///< written; must not exist
};

/// One open file of the system, unbuffered, with offsets of 64 bits. Directories do not open.
class VXFile
{
public:
    VXFile() = default;
    VXFile(const VXFile&) = delete;
    VXFile& operator=(const VXFile&) = delete;
    ~VXFile() { Close(); }

    std::error_code Open(const std::filesystem::path& path, FileAccess access);
    std::error_code Close();
    bool IsOpen() const { return m_file >= 0; }

    /// Number of bytes read: size, or fewer at the end of the file and when something failed. From a pipe the
    /// bytes come in order, whatever the offset.
    std::size_t ReadAt(std::uint64_t offset, void* bytes, std::size_t size, std::error_code& fault) const;
    std::error_code WriteAt(std::uint64_t offset, const void* bytes, std::size_t size) const;
    /// The size now; 0 for what is no ordinary file.
    std::uint64_t Size() const;
    /// Waits until what was written is on the disk.
    std::error_code Sync() const;

private:
    std::int64_t ReadSome(std::uint64_t offset, void* bytes, std::size_t size) const;
    std::int64_t WriteSome(std::uint64_t offset, const void* bytes, std::size_t size) const;

    int m_file = -1;
};

/// The path of a UTF-8 text.
std::filesystem::path PathOf(const std::string& utf8);

/// Makes renamed or new entries of a folder last; what cannot be done is left out.
void SyncFolder(const std::filesystem::path& folder);

} // namespace Vexlor
