#pragma once

#include "Import.h"

#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{
class IVXFormatPreset;
}

namespace Vexlor::Tool
{

/// A file with more presets is none that people have made.
inline constexpr int kMostImported = 4000;

/// The name of a preset or category here: "unnamed" where there is none; one that is longer than people write
/// is cut, and that is found. path is that of its category, offset where it stands in the file.
std::string ImportedName(const std::string& name, const std::string& path, std::size_t offset,
                         std::vector<ImportFinding>& findings);

/// Where something stands in the file that is imported.
struct ImportSource
{
    std::string member;     ///< its name, behind the path of its preset
    std::size_t offset = 0; ///< in bytes
};

/// One preset of another program on its way to ours: what it asks for is set, and what cannot be is found.
class ImportedPreset
{
public:
    /// An unnamed preset of no container yet. Findings are told with that path.
    ImportedPreset(std::vector<ImportFinding>& findings, const std::string& path);

    /// Makes it one of that container, which it is asked for first. Answers false, and finds it, where that
    /// container cannot be written here.
    bool MakeFor(const ImportSource& source, const std::string& container);
    /// Sets a value as SetPresetValue does; finds it where that does not go. Answers whether it went.
    bool Set(const ImportSource& source, std::string_view key, const std::string& value);
    /// Finds that something is left out, and why.
    void LeaveOut(const ImportSource& source, const std::string& why);
    /// Finds that something became something like it, and what.
    void Change(const ImportSource& source, const std::string& what);

    /// Empty before a container was made.
    const std::shared_ptr<IVXFormatPreset>& Preset() const { return m_preset; }

private:
    void Find(bool isLost, const ImportSource& source, const std::string& what);

    std::vector<ImportFinding>& m_findings;
    std::string m_path;
    std::shared_ptr<IVXFormatPreset> m_preset;
};

} // namespace Vexlor::Tool
