#pragma once

#include <filesystem>
#include <string>

namespace Vexlor::Tool
{

/// A file that is to take the place of another one, written beside it and removed again when it does not come
/// to that. While it lives, others that replace files of the same folder wait. Operations throw Failure.
class FileReplacement final
{
public:
    explicit FileReplacement(const std::string& path);
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;
    ~FileReplacement();

    /// True when there is something to replace.
    bool Exists() const;
    /// Makes the new, empty file with the old one's permissions; answers its path.
    const std::string& Open();
    /// Waits until what was written to the new file is on the disk.
    void Sync() const;
    /// Gives the new file the old one's name.
    void TakePlace();

private:
    void KeepPermissions() const;

    std::filesystem::path m_target;
    std::filesystem::path m_folder;
    std::string m_path; // of the new file while there is one
    int m_lock;         // the folder, which can be locked without leaving anything in it
    bool m_isLocked;    // false where the system cannot do that
};

} // namespace Vexlor::Tool
