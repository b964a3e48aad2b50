#include "RecentStore.h"

#include "RecentPresets.h"

#include "apps/host/Failure.h"
#include "apps/host/document/DocumentChanges.h"
#include "apps/host/document/DocumentFile.h"
#include "apps/host/document/Qualities.h"

#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXAtomicFile.h"
#include "runtime/foundation/VXJson.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

#include <algorithm>
#include <string>

namespace Vexlor::Studio
{

namespace
{

constexpr const char* kDocuments = "documents";
constexpr const char* kDocumentPath = "path";
constexpr const char* kPresets = "presets";
constexpr int kPatience = 100; // milliseconds: the window stands still meanwhile
constexpr std::size_t kMostBytes = 16 << 20;

/// What is kept of one document.
struct Entry
{
    std::string path;
    std::vector<std::string> presets; // their texts
};
using Entries = std::vector<Entry>;

std::string FilePath() { return RecentStore::Path().toStdString(); }

std::shared_ptr<const IVXJsonValue> JsonOf(const QFileInfo& file)
{
    const auto path = file.filePath().toStdString();
    if (!file.isFile())
        throw Tool::Failure(path + ": is no file");
    if (static_cast<std::size_t>(file.size()) > kMostBytes)
        throw Tool::Failure(path + ": is too large");
    std::string error;
    auto json = ParseJsonInPlace(Tool::ReadDocumentText(path), &error);
    if (!json)
        throw Tool::Failure(path + ':' + error);
    if (!JsonText(*(*json)[kDocuments]).starts_with('['))
        throw Tool::Failure(path + ": is no list of recently used presets");
    return json;
}

/// Whatever else is in the file is of nobody's use.
Entry EntryOf(const IVXJsonValue& json)
{
    Entry entry{json.GetValueString(kDocumentPath), {}};
    const auto presets = json.GetValueArray(kPresets);
    for (int i = 0; i < std::min(presets->Size(), kMostRecentPresets); ++i)
        if (auto text = JsonText(*presets->At(i)); text.starts_with('{'))
            entry.presets.push_back(std::move(text));
    return entry;
}

Entries ReadEntries()
{
    const QFileInfo file(RecentStore::Path());
    if (!file.exists() && !file.isSymLink())
        return {};
    const auto documents = JsonOf(file)->GetValueArray(kDocuments);
    Entries entries;
    for (int i = 0; i < std::min(documents->Size(), RecentStore::kMostDocuments); ++i)
        entries.push_back(EntryOf(*documents->At(i)));
    return entries;
}

std::string Listed(const std::vector<std::string>& texts)
{
    std::string list;
    for (const auto& text : texts)
        list.append(list.empty() ? "\n" : ",\n").append(text);
    return '[' + list + ']';
}

std::string TextOf(const Entries& entries)
{
    std::vector<std::string> texts;
    for (const auto& entry : entries)
    {
        std::string text("{\"");
        text.append(kDocumentPath).append("\": ").append(Tool::JsonQuoted(entry.path));
        text.append(", \"").append(kPresets).append("\": ").append(Listed(entry.presets)).append("}");
        texts.push_back(std::move(text));
    }
    std::string text("{\"");
    return text.append(kDocuments).append("\": ").append(Listed(texts)).append("}\n");
}

/// What is oldest goes where all of it would be too much.
void DropOldest(Entries& entries)
{
    auto& presets = entries.back().presets;
    if (presets.size() > 1)
        presets.pop_back();
    else
        entries.pop_back();
}

/// The only one who writes, while it lives.
class Turn final
{
public:
    Turn() : m_lock(RecentStore::LockPath())
    {
        m_lock.setStaleLockTime(0); // only that of a program which has gone is
        if (!m_lock.tryLock(kPatience) && m_lock.error() == QLockFile::LockFailedError)
            throw RecentStore::Busy(FilePath() + ": another program is writing it");
    }

private:
    QLockFile m_lock;
};

void WriteEntries(Entries entries)
{
    if (entries.size() > static_cast<std::size_t>(RecentStore::kMostDocuments))
        entries.resize(RecentStore::kMostDocuments);
    auto text = TextOf(entries);
    for (; text.size() > kMostBytes; text = TextOf(entries))
        DropOldest(entries);
    std::string error;
    if (!WriteFileAtomically(FilePath(), text, &error))
        throw Tool::Failure(error);
}

/// Takes the entry of that document out of the others.
Entry Taken(Entries& entries, const std::string& document)
{
    Entry taken{document, {}};
    if (const auto found = std::ranges::find(entries, document, &Entry::path); found != entries.end())
        taken = *found;
    std::erase_if(entries, [&document](const Entry& entry) { return entry.path == document; });
    return taken;
}

std::shared_ptr<IVXFormatPreset> PresetOf(const std::string& text)
{
    const auto json = ParseJson(text);
    auto preset = IVXFormatPreset::MallocFormatPreset(json);
    Tool::TakeUpQualities(*preset, *json);
    return preset;
}

} // namespace

QString RecentStore::Path()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/recent.json";
}

QString RecentStore::LockPath() { return Path() + ".lock"; }

std::vector<std::shared_ptr<IVXFormatPreset>> RecentStore::PresetsOf(const QString& document)
{
    auto entries = ReadEntries();
    std::vector<std::shared_ptr<IVXFormatPreset>> presets;
    for (const auto& text : Taken(entries, document.toStdString()).presets)
        if (auto preset = PresetOf(text); !preset->Name().empty() && !preset->FormatName().empty())
            presets.push_back(std::move(preset));
    return presets;
}

void RecentStore::Note(const QString& document, const IVXFormatPreset& preset)
{
    QDir().mkpath(QFileInfo(Path()).path());
    const Turn turn;
    auto entries = ReadEntries();
    auto entry = Taken(entries, document.toStdString());
    std::erase_if(entry.presets,
                  [&preset](const auto& text) { return IsSamePreset(*PresetOf(text), preset); });
    entry.presets.insert(entry.presets.begin(), JsonText(*preset.JsonValue()));
    entry.presets.resize(std::min<std::size_t>(entry.presets.size(), kMostRecentPresets));
    entries.insert(entries.begin(), std::move(entry));
    WriteEntries(std::move(entries));
}

void RecentStore::Forget(const QString& document)
{
    if (!QFileInfo::exists(Path()))
        return;
    const Turn turn;
    auto entries = ReadEntries();
    if (!Taken(entries, document.toStdString()).presets.empty())
        WriteEntries(std::move(entries));
}

} // namespace Vexlor::Studio
