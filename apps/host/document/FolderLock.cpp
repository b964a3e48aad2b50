#include "FolderLock.h"

#include <filesystem>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace Vexlor::Tool
{

namespace
{

namespace fs = std::filesystem;

// Where the file is in truth: a link may lead elsewhere.
fs::path FolderOf(const std::string& path)
{
    std::error_code fault;
    auto target = fs::canonical(path, fault);
    if (fault)
        target = path;
    return target.has_parent_path() ? target.parent_path() : fs::path(".");
}

} // namespace

FolderLock::FolderLock(const std::string& path)
    : m_folder(::open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (m_folder >= 0)
        static_cast<void>(::flock(m_folder, LOCK_EX));
}

FolderLock::~FolderLock()
{
    if (m_folder >= 0)
        ::close(m_folder);
}

} // namespace Vexlor::Tool
