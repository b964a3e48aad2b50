#include "ImportedPreset.h"

#include "apps/host/Failure.h"
#include "apps/host/Text.h"
#include "apps/host/document/PresetValues.h"

#include "IVXFormatPreset.h"

namespace Vexlor::Tool
{

namespace
{

// Whole characters of it, at most so many bytes and a mark that there was more.
std::string Shortened(const std::string& text, std::size_t most)
{
    if (text.size() <= most)
        return text;
    std::size_t end = most;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        --end;
    return text.substr(0, end) + "…";
}

// Each finding has the path.
std::string ShownPath(const std::string& path)
{
    constexpr std::size_t kMost = 400;
    return Shortened(path, kMost);
}

} // namespace

std::string ImportedName(const std::string& name, const std::string& path, std::size_t offset,
                         std::vector<ImportFinding>& findings)
{
    constexpr std::size_t kMost = 200;
    if (name.empty())
        return "unnamed";
    auto shortened = Shortened(name, kMost);
    if (name.size() > kMost)
        findings.push_back({false,
                            offset,
                            {},
                            ShownPath(path + PathEscaped(shortened)),
                            "a name of " + std::to_string(name.size()) + " bytes is cut"});
    return shortened;
}

ImportedPreset::ImportedPreset(std::vector<ImportFinding>& findings, const std::string& path)
    : m_findings(findings), m_path(ShownPath(path))
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
