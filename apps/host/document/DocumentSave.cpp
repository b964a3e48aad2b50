#include "DocumentSave.h"

#include "DocumentFile.h"
#include "FolderLock.h"
#include "apps/host/Failure.h"
#include "apps/host/convert/OutputFile.h"

#include "IVXJsonValue.h"
#include "runtime/foundation/VXAtomicFile.h"
#include "runtime/foundation/VXJson.h"

#include <algorithm>
#include <filesystem>

namespace Vexlor::Tool
{

namespace
{

namespace fs = std::filesystem;

void Write(const std::string& path, const std::string& text)
{
    std::string error;
    if (!WriteFileAtomically(path, text, &error))
        throw Failure(error);
}

bool Exists(const std::string& path)
{
    std::error_code ignored;
    return fs::exists(path, ignored);
}

void RequireObject(const std::string& path, const std::string& text)
{
    std::string error;
    if (!ParseJson(text, &error))
        throw Failure(path + ':' + error);
    if (text.find_first_not_of(" \t\r\n") != text.find('{'))
        throw Failure(path + ": is not a JSON object");
}

void KeepBackup(const std::string& path)
{
    const auto backup = path + ".bak";
    Write(backup, ReadWholeFile(path));
    std::error_code ignored;
    fs::permissions(backup, fs::status(path, ignored).permissions(), ignored);
}

} // namespace

void ChangeDocument(const std::string& path, const DocumentSaving& saving,
                    const std::function<std::string(const std::string& text)>& change)
{
    const FolderLock lock(path);
    auto before = saving.mayMake && !Exists(path) ? std::string("{\n}") : ReadWholeFile(path);
    const bool isMarked = before.starts_with(kByteOrderMark);
    before.erase(0, isMarked ? kByteOrderMark.size() : 0);
    RequireObject(path, before);
    try
    {
        auto after = change(before);
        std::string error;
        if (!ParseJson(after, &error))
            throw Failure("what it becomes cannot be read: " + error);
        if (after == before && Exists(path))
            return; // nor is a backup of what was before replaced
        if (saving.keepsBackup && Exists(path))
            KeepBackup(path);
        if (isMarked)
            after.insert(0, kByteOrderMark);
        Write(path, after);
    }
    catch (const Failure& failure)
    {
        throw Failure(path + ": not changed: " + failure.what());
    }
}

void MakeDocument(const std::string& path, const std::string& text)
{
    OutputFile file(path, false);
    std::string error;
    if (!WriteFileAtomically(file.TemporaryPath(), text, &error))
        throw Failure(path + error.substr(std::min(error.size(), file.TemporaryPath().size())));
    file.Keep();
}

} // namespace Vexlor::Tool
