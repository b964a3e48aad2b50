#include "DocumentContent.h"

#include "apps/host/Failure.h"
#include "apps/host/document/DocumentFile.h"
#include "apps/host/document/DocumentSave.h"
#include "apps/host/document/FolderLock.h"
#include "apps/host/document/Qualities.h"
#include "catalog/DefaultTree.h"

#include "IVXFormatNode.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXAtomicFile.h"
#include "runtime/foundation/VXJson.h"

#include <exception>
#include <filesystem>

#include <fcntl.h>
#include <unistd.h>

namespace Vexlor::Studio
{

namespace
{

/// The file holds what somebody else has written.
struct OtherText : std::exception
{
};

bool Exists(const std::string& path)
{
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

bool MayBeWritten(const std::string& path)
{
    using std::filesystem::perms;
    std::error_code ignored;
    const auto status = std::filesystem::status(path, ignored);
    return (status.permissions() & (perms::owner_write | perms::group_write | perms::others_write)) !=
               perms::none &&
           ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

// A new file in its place could be written all the same.
void RequireWritable(const std::string& path)
{
    std::error_code ignored;
    if (Exists(path) && !MayBeWritten(path))
        throw Tool::Failure(path + ": is write-protected");
    if (!Exists(path) && std::filesystem::is_symlink(path, ignored))
        throw Tool::Failure(path + ": is a link to a file that is not there");
}

} // namespace

DocumentContent ReadContent(const std::string& path)
{
    auto basis = std::make_shared<DocumentBasis>();
    basis->text = Tool::ReadDocumentText(path);
    std::string error;
    const auto json = ParseJson(basis->text, &error);
    if (!json)
        throw Tool::Failure(path + ':' + error);
    if (basis->text.find_first_not_of(" \t\r\n") != basis->text.find('{'))
        throw Tool::Failure(path + ": is not a preset document");
    auto root = IVXFormatNode::MallocFormatNode(json);
    const bool isEmpty = root->ChildCount() + root->FormatPresetCount() == 0;
    if (isEmpty && json->GetValueArray("PresetList")->Size() > 0)
        throw Tool::Failure(path + ": holds presets of another program, which can be imported");
    Tool::TakeUpQualities(*root, *json);
    basis->plan = PlanOf(root, [](const auto&) { return true; });
    return {std::move(root), std::move(basis)};
}

DocumentContent BuiltInContent() { return {Catalog::DefaultTree(), std::make_shared<DocumentBasis>()}; }

bool WriteOver(const std::string& path, const std::string& expected, const std::string& text)
{
    if (!Exists(path))
    {
        WriteAnyway(path, text);
        return true;
    }
    RequireWritable(path);
    const auto change = [&](const std::string& before)
    {
        if (before != expected)
            throw OtherText();
        return text;
    };
    try
    {
        Tool::ChangeDocument(path, {}, change);
    }
    catch (const OtherText&)
    {
        return false;
    }
    catch (const Tool::Failure&)
    {
        if (Tool::ReadDocumentText(path) != expected) // what somebody else has written may be no document
            return false;
        throw;
    }
    return true;
}

void WriteAnyway(const std::string& path, const std::string& text)
{
    RequireWritable(path);
    const Tool::FolderLock lock(path);
    std::string error;
    if (!ParseJson(text, &error))
        throw Tool::Failure(path + ": not written, for it could not be read again: " + error);
    if (!WriteFileAtomically(path, text, &error))
        throw Tool::Failure(error);
}

} // namespace Vexlor::Studio
