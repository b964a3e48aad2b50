#include "ImportedPreset.h"

#include "apps/host/Failure.h"
#include "apps/host/Text.h"
#include "apps/host/document/PresetValues.h"

#include "IVXFormatPreset.h"

namespace Vexlor::Tool
{

ImportedPreset::ImportedPreset(std::vector<ImportFinding>& findings, std::string path)
    : m_findings(findings), m_path(std::move(path))
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
