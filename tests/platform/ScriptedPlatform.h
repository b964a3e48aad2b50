#pragma once

#include "IVXLogConfig.h"
#include "IVXStorage.h"

#include "tests/platform/ScriptedCodec.h"
#include "tests/platform/ScriptedFile.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Vexlor
{

/// One container as a test describes it.
struct ScriptedFormat
{
    std::vector<int> videoCodecIDs;
    std::vector<int> audioCodecIDs;
    bool listed = true; ///< whether VXMediaCodecSupportOutputAllMediaFormats names it
    bool made = true;   ///< whether MallocFormat makes it
};

/// One line of the log; without a level when it was written by the form that takes none.
struct ScriptedLogLine
{
    std::optional<IVXLogConfig::LogLevel> level;
    std::string text;
};

/// Both platform libraries as one test wants them. The platform's functions answer from the object made last
/// that still lives, so each test makes its own and starts from nothing; without one there are no codecs, no
/// containers and no files, and log lines are lost.
///
/// Display texts name what was asked: "1280 x 720", "44100 Hz", "layout 3", "pixel format 0", "sample format
/// 3", "grade 2", "30000/1001 fps". The aspect ratios do too, over 100: 100 for DVD, 200 for 1080i or 300 for
/// 720p, 10 more for NTSC, 1 more for 4:3.
class ScriptedPlatform
{
public:
    ScriptedPlatform();
    ~ScriptedPlatform();
    ScriptedPlatform(const ScriptedPlatform&) = delete;
    ScriptedPlatform& operator=(const ScriptedPlatform&) = delete;

    /// The codec of that identifier, defined by the first call; identifiers that no test named are unknown to
    /// MallocCodecs. Objects made before see later changes.
    ScriptedCodec& Codec(int codecID);
    /// The container of that name, defined by the first call. Containers are listed in order of definition.
    ScriptedFormat& Format(const std::string& name);
    /// The file of that path, made empty by the first call.
    ScriptedFile& File(const std::string& path);
    /// True when there is a file of that path, made by a test or by a storage.
    bool HasFile(const std::string& path) const;

    /// Every call so far of a codecs object, of MallocCodecs, DefaultCodecName, MallocCodecParamter,
    /// MallocFormat, MallocFormatParameter and the three aspect ratio functions, in order.
    const std::vector<std::string>& Calls() const { return m_calls; }
    /// Those of one operation only.
    std::vector<std::string> CallsTo(std::string_view operation) const;
    /// All of them, a line each.
    std::string CallsText() const;
    /// Starts the record anew.
    void ForgetCalls() { m_calls.clear(); }

    /// The whole log as it was written.
    std::string Log() const;
    /// Its lines, one a call.
    const std::vector<ScriptedLogLine>& LogLines() const { return m_log; }

    // What the platform's functions ask.

    /// The living object that was made last; null when there is none.
    static ScriptedPlatform* Current();
    /// Adds a call to the record of the current object, if there is one.
    static void Record(std::string call);
    /// The codec, empty when it is not defined.
    std::shared_ptr<const ScriptedCodec> FindCodec(int codecID) const;
    /// The container, null when it is not defined.
    const ScriptedFormat* FindFormat(const std::string& name) const;
    /// The names of the listed containers.
    std::vector<std::string> ListedFormats() const;
    /// The file behind a storage opened in that mode; empty when it cannot be opened.
    std::shared_ptr<ScriptedFile> Open(const std::string& path, IVXStorage::StorageMode mode);
    /// Adds a log line.
    void AddLog(ScriptedLogLine line) { m_log.push_back(std::move(line)); }

private:
    using NamedFormat = std::pair<std::string, std::unique_ptr<ScriptedFormat>>;

    ScriptedPlatform* m_outer;
    std::map<int, std::shared_ptr<ScriptedCodec>> m_codecs;
    std::vector<NamedFormat> m_formats;
    std::map<std::string, std::shared_ptr<ScriptedFile>> m_files;
    std::vector<std::string> m_calls;
    std::vector<ScriptedLogLine> m_log;
};

} // namespace Vexlor
