#include "tests/platform/ScriptedPlatform.h"

#include <algorithm>

namespace Vexlor
{

namespace
{

ScriptedPlatform* g_current = nullptr;

} // namespace

ScriptedPlatform::ScriptedPlatform() : m_outer(g_current) { g_current = this; }

ScriptedPlatform::~ScriptedPlatform() { g_current = m_outer; }

ScriptedCodec& ScriptedPlatform::Codec(int codecID)
{
    auto& codec = m_codecs[codecID];
    if (!codec)
    {
        codec = std::make_shared<ScriptedCodec>();
        codec->name = "codec " + std::to_string(codecID);
        codec->defaultName = "default name of " + codec->name;
    }
    return *codec;
}

ScriptedFormat& ScriptedPlatform::Format(const std::string& name)
{
    const auto known = std::ranges::find(m_formats, name, &NamedFormat::first);
    if (known != m_formats.end())
        return *known->second;
    return *m_formats.emplace_back(name, std::make_unique<ScriptedFormat>()).second;
}

ScriptedFile& ScriptedPlatform::File(const std::string& path)
{
    auto& file = m_files[path];
    if (!file)
        file = std::make_shared<ScriptedFile>();
    return *file;
}

bool ScriptedPlatform::HasFile(const std::string& path) const { return m_files.contains(path); }

std::vector<std::string> ScriptedPlatform::CallsTo(std::string_view operation) const
{
    const auto start = std::string(operation) + "(";
    std::vector<std::string> calls;
    for (const auto& call : m_calls)
        if (call.starts_with(start))
            calls.push_back(call);
    return calls;
}

std::string ScriptedPlatform::CallsText() const
{
    std::string text;
    for (const auto& call : m_calls)
        text += call + "\n";
    return text;
}

std::string ScriptedPlatform::Log() const
{
    std::string text;
    for (const auto& line : m_log)
        text += line.text;
    return text;
}

ScriptedPlatform* ScriptedPlatform::Current() { return g_current; }

void ScriptedPlatform::Record(std::string call)
{
    if (g_current)
        g_current->m_calls.push_back(std::move(call));
}

std::shared_ptr<const ScriptedCodec> ScriptedPlatform::FindCodec(int codecID) const
{
    const auto known = m_codecs.find(codecID);
    return known != m_codecs.end() ? known->second : nullptr;
}

const ScriptedFormat* ScriptedPlatform::FindFormat(const std::string& name) const
{
    const auto known = std::ranges::find(m_formats, name, &NamedFormat::first);
    return known != m_formats.end() ? known->second.get() : nullptr;
}

std::vector<std::string> ScriptedPlatform::ListedFormats() const
{
    std::vector<std::string> names;
    for (const auto& [name, format] : m_formats)
        if (format->listed)
            names.push_back(name);
    return names;
}

std::shared_ptr<ScriptedFile> ScriptedPlatform::Open(const std::string& path, IVXStorage::StorageMode mode)
{
    if (!HasFile(path) && mode == IVXStorage::StorageModeRead)
        return {};
    auto& file = File(path);
    if (!file.opens)
        return {};
    if (mode == IVXStorage::StorageModeWrite)
        file.bytes.clear();
    return m_files[path];
}

} // namespace Vexlor
