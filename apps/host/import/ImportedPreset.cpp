#include "ImportedPreset.h"

#include "apps/host/Failure.h"
#include "apps/host/Text.h"
#include "apps/host/document/PresetValues.h"

#include "IVXFormatPreset.h"

namespace Vexlor::Tool
{

namespace
{

// Each finding has it, and folders of a hostile file have names as long as the file.
std::string Shortened(const std::string& path)
{
    constexpr std::size_t kMost = 400;
    if (path.size() <= kMost)
        return path;
    std::size_t end = kMost;
    while (end > 0 && (static_cast<unsigned char>(path[end]) & 0xC0U) == 0x80U)
        --end;
    return path.substr(0, end) + "…";
}

} // namespace

ImportedPreset::ImportedPreset(std::vector<ImportFinding>& findings, const std::string& path)
    : m_findings(findings), m_path(Shortened(path))
{
}

bool ImportedPreset::MakeFor(const ImportSource& source, const std::string& container)
{
    m_preset = IVXFormatPreset::MallocFormatPreset(container, {});
    if (!m_preset)
        LeaveOut(source, "the container " + container + " cannot be written here");
    return m_preset != nullptr;
}

bool ImportedPreset::Set(const ImportSource& source, std::string_view key, const std::string& value)
{
    try
    {
        SetPresetValue(*m_preset, key, value);
        return true;
    }
    catch (const Failure& failure)
    {
        LeaveOut(source, failure.what());
        return false;
    }
}

void ImportedPreset::LeaveOut(const ImportSource& source, const std::string& why) { Find(true, source, why); }

void ImportedPreset::Change(const ImportSource& source, const std::string& what)
{
    Find(false, source, what);
}

void ImportedPreset::Find(bool isLost, const ImportSource& source, const std::string& what)
{
    const auto path = source.member.empty() ? m_path : m_path + '/' + PathEscaped(source.member);
    m_findings.push_back({isLost, source.offset, {}, path, what});
}

} // namespace Vexlor::Tool
