#include "runtime/foundation/VXAtomicFile.h"

#include "runtime/foundation/VXFile.h"

namespace Vexlor
{

namespace
{

namespace fs = std::filesystem;

// Opens a file of a name that nobody uses in that folder.
std::error_code OpenTemporary(const fs::path& folder, VXFile& file, fs::path& path)
{
    constexpr int kMostLeftovers = 1000;
    std::error_code fault;
    for (int number = 0; number < kMostLeftovers; ++number)
    {
        path = folder / (".vx-" + std::to_string(number) + ".tmp");
        fault = file.Open(path, FileAccess::New);
        if (fault != std::errc::file_exists)
            break;
    }
    return fault;
}

// What the file is in truth: a link's target keeps its name.
fs::path TargetOf(const fs::path& path)
{
    std::error_code fault;
    const fs::path target = fs::canonical(path, fault);
    return fault ? path : target;
}

std::error_code Fill(VXFile& file, const fs::path& path, fs::perms permissions, std::string_view text)
{
    std::error_code fault;
    if (permissions != fs::perms::unknown)
        fs::permissions(path, permissions, fault);
    if (!fault)
        fault = file.WriteAt(0, text.data(), text.size());
    if (!fault)
        fault = file.Sync();
    const std::error_code atClosing = file.Close();
    return fault ? fault : atClosing;
}

std::error_code Replace(const fs::path& target, fs::perms permissions, std::string_view text)
{
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    VXFile file;
    fs::path temporary;
    if (const auto fault = OpenTemporary(folder, file, temporary))
        return fault;
    std::error_code fault = Fill(file, temporary, permissions, text);
    if (!fault)
        fs::rename(temporary, target, fault);
    std::error_code ignored;
    if (fault)
        fs::remove(temporary, ignored);
    else
        SyncFolder(folder);
    return fault;
}

std::string ReplaceOrReason(const fs::path& path, std::string_view text)
{
    if (path.native().find(fs::path::value_type()) != fs::path::string_type::npos)
        return std::make_error_code(std::errc::invalid_argument).message();
    const fs::path target = TargetOf(path);
    std::error_code ignored;
    const fs::file_status status = fs::status(target, ignored);
    if (fs::exists(status) && !fs::is_regular_file(status))
        return "not a regular file";
    const auto permissions = fs::exists(status) ? status.permissions() : fs::perms::unknown;
    const auto fault = Replace(target, permissions, text);
    return fault ? fault.message() : std::string();
}

} // namespace

bool WriteFileAtomically(const std::string& path, std::string_view text, std::string* error)
{
    const std::string reason = ReplaceOrReason(PathOf(path), text);
    if (error && !reason.empty())
        *error = path + ": " + reason;
    return reason.empty();
}

} // namespace Vexlor
