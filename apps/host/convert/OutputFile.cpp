#include "OutputFile.h"

#include "apps/host/Failure.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace Vexlor::Tool
{

namespace
{

namespace fs = std::filesystem;

Failure FailureOf(const std::string& path, int error)
{
    return Failure{path + ": " + std::generic_category().message(error)};
}

/// The file that a link leads to, so that the link stays.
fs::path Resolved(const std::string& path)
{
    std::error_code error;
    const auto target = fs::canonical(path, error);
    return error ? fs::path(path) : target;
}

void CheckPlace(const std::string& path, bool overwrites)
{
    if (path.empty())
        throw Failure("the file to write has no name");
    std::error_code error;
    const auto status = fs::status(path, error);
    if (!fs::exists(status))
        return;
    if (!fs::is_regular_file(status))
        throw Failure(path + ": is not a file");
    if (!overwrites)
        throw Failure(path + ": is there already");
}

// Its name is short, for the other may be as long as names can be.
/// Makes a hidden file beside it that nothing else has.
std::string MakeBeside(const fs::path& path)
{
    constexpr int kTries = 100;
    for (int i = 0; i < kTries; ++i)
    {
        const auto name = ".vx-" + std::to_string(::getpid()) + '-' + std::to_string(i) + ".part";
        auto temporary = (path.parent_path() / name).string();
        const int file = ::open(temporary.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
        if (file >= 0)
        {
            ::close(file);
            return temporary;
        }
        if (errno != EEXIST)
            break;
    }
    throw FailureOf(path.string(), errno);
}

} // namespace

OutputFile::OutputFile(const std::string& path, bool overwrites) : m_path(path), m_overwrites(overwrites)
{
    CheckPlace(path, overwrites);
    m_path = Resolved(path).string();
    m_temporary = MakeBeside(m_path);
}

OutputFile::~OutputFile()
{
    if (!m_temporary.empty())
        ::unlink(m_temporary.c_str());
}

// A link is made only where nothing is, which a renaming would not mind.
void OutputFile::Link()
{
    if (::link(m_temporary.c_str(), m_path.c_str()) == 0)
    {
        ::unlink(m_temporary.c_str());
        return;
    }
    if (errno == EEXIST)
        throw Failure(m_path + ": is there already");
    CheckPlace(m_path, false); // a file system without links
    if (::rename(m_temporary.c_str(), m_path.c_str()) != 0)
        throw FailureOf(m_path, errno);
}

void OutputFile::Keep()
{
    if (!m_overwrites)
        Link();
    else if (::rename(m_temporary.c_str(), m_path.c_str()) != 0)
        throw FailureOf(m_path, errno);
    m_temporary.clear();
}

void CheckOutput(const std::string& path, const std::string& source, bool overwrites)
{
    std::error_code ignored;
    if (fs::equivalent(path, source, ignored))
        throw Failure(path + ": is the source itself");
    CheckPlace(path, overwrites);
}

} // namespace Vexlor::Tool
