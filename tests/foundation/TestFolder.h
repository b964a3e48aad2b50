#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace Vexlor
{

/// An empty folder of its own for a test, removed with what is in it.
class TestFolder
{
public:
    TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder();

    const std::filesystem::path& Path() const { return m_path; }
    /// UTF-8 path of a name in the folder.
    std::string operator/(std::string_view name) const;
    /// Number of entries.
    std::ptrdiff_t Count() const;

private:
    std::filesystem::path m_path;
};

std::string ContentOf(const std::string& path);
/// Makes the file hold text and answers its path.
std::string WithContent(const std::string& path, std::string_view text);

} // namespace Vexlor
