#pragma once

#include <string>

namespace Vexlor::Tool
{

/// While it lives, others that lock the folder of the same file wait, and so do changes of artwork files
/// there. Nothing is left behind in the folder; where the system cannot lock one, nobody waits.
class FolderLock
{
public:
    explicit FolderLock(const std::string& path);
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock();

private:
    int m_folder;
};

} // namespace Vexlor::Tool
