#include "Outcome.h"

#include "OutputName.h"
#include "apps/host/Failure.h"
#include "apps/host/convert/FfmpegCommand.h"
#include "apps/studio/ShownText.h"

#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"

#include <initializer_list>

namespace Vexlor::Studio
{

namespace
{

/// Stands for a file that nobody has named yet, and begins what is said of it.
std::string AnyOutput(const Outcome& outcome)
{
    return "output." + EndingOf(ShownText(outcome.match.output->FormatName())).toStdString();
}

std::string WithoutFile(std::string text, const std::initializer_list<std::string>& files)
{
    for (const auto& name : files)
        if (text.starts_with(name + ": "))
            text.erase(0, name.size() + 2);
    return text;
}

/// What FFmpeg would be told tells best whether it can be done.
void AddObstacle(Outcome& outcome, const std::string& path)
{
    const auto output = AnyOutput(outcome);
    try
    {
        outcome.changes = Tool::FfmpegCommandFor(outcome.match, path, output, {}).changes;
    }
    catch (const Tool::Failure& failure)
    {
        outcome.obstacle = WithoutFile(failure.what(), {path, output});
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
