#include "ArtworkReplacement.h"

#include "apps/host/Failure.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace Vexlor::Tool
{

namespace
{

namespace fs = std::filesystem;

[[noreturn]] void Fail(const std::string& path, const std::error_code& fault)
{
    throw Failure(path + ": " + fault.message());
}

std::error_code LastFault() { return {errno, std::generic_category()}; }

// A link keeps its name, the file that it leads to is replaced.
fs::path TargetOf(const std::string& path)
{
    std::error_code fault;
    const auto target = fs::canonical(path, fault);
    return fault ? fs::path(path) : target;
}

} // namespace

FileReplacement::FileReplacement(const std::string& path)
    : m_target(TargetOf(path)), m_folder(m_target.has_parent_path() ? m_target.parent_path() : fs::path(".")),
      m_lock(::open(m_folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      m_isLocked(m_lock >= 0 && ::flock(m_lock, LOCK_EX) == 0)
{
}

FileReplacement::~FileReplacement()
{
    if (!m_path.empty())
        ::unlink(m_path.c_str());
    if (m_lock >= 0)
        ::close(m_lock);
}

bool FileReplacement::Exists() const
{
    std::error_code fault;
    return fs::exists(fs::status(m_target, fault));
}

const std::string& FileReplacement::Open()
{
    constexpr mode_t kAllMayReadAndWrite = 0666; // less what the user's mask takes away
    const auto path =
        (m_folder / std::string(".").append(m_target.filename().string()).append(".new")).string();
    if (m_isLocked)
        ::unlink(path.c_str()); // left over of a change that was killed: nobody else is at it now
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kAllMayReadAndWrite);
    if (file < 0)
        Fail(path, LastFault());
    ::close(file);
    m_path = path;
    KeepPermissions();
    return m_path;
}

void FileReplacement::KeepPermissions() const
{
    std::error_code fault;
    const auto status = fs::status(m_target, fault);
    if (!fs::exists(status))
        return;
    fs::permissions(m_path, status.permissions(), fault);
    if (fault)
        Fail(m_path, fault);
}

void FileReplacement::Sync() const
{
    const int file = ::open(m_path.c_str(), O_RDONLY | O_CLOEXEC);
    const auto fault = file < 0 || ::fsync(file) != 0 ? LastFault() : std::error_code();
    if (file >= 0)
        ::close(file);
    if (fault)
        Fail(m_path, fault);
}

void FileReplacement::TakePlace()
{
    std::error_code fault;
    fs::rename(m_path, m_target, fault);
    if (fault)
        Fail(m_target.string(), fault);
    m_path.clear();
    if (m_lock >= 0)
        ::fsync(m_lock); // the new name too is to last
}

} // namespace Vexlor::Tool
