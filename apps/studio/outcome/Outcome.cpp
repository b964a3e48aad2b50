#include "Outcome.h"

#include "apps/host/Failure.h"
#include "apps/host/convert/FfmpegCommand.h"

#include "IVXFormatPreset.h"

#include <string_view>

namespace Vexlor::Studio
{

namespace
{

// Stands for a file that nobody has named yet, and begins what is said of it.
constexpr std::string_view kOutput = "output";

std::string WithoutFile(std::string text, const std::string& path)
{
    for (const auto& name : {path, std::string(kOutput)})
        if (text.starts_with(name + ": "))
            text.erase(0, name.size() + 2);
    return text;
}

/// What FFmpeg would be told tells best whether it can be done.
void AddObstacle(Outcome& outcome, const std::string& path)
{
    try
    {
        outcome.changes = Tool::FfmpegCommandFor(outcome.match, path, std::string(kOutput), {}).changes;
    }
    catch (const Tool::Failure& failure)
    {
        outcome.obstacle = WithoutFile(failure.what(), path);
    }
}

} // namespace

Outcome OutcomeOf(const VXMediaFile& media, const std::string& path, const IVXFormatPreset& preset)
{
    Outcome outcome{Tool::MatchMedia(media, preset), {}, {}, {}, {}};
    outcome.warnings = Tool::WarningsOf(outcome.match);
    AddObstacle(outcome, path);
    const auto streams = outcome.match.OutputStreams();
    if (media.duration > 0 && (streams.video.parameter || streams.audio.parameter))
        outcome.size = Tool::EstimateSize(*outcome.match.output, media.duration);
    return outcome;
}

} // namespace Vexlor::Studio
