#include "FfmpegCommand.h"

#include "FfmpegFilters.h"
#include "apps/host/Failure.h"
#include "apps/host/Text.h"
#include "apps/host/match/MediaMatch.h"

#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "runtime/mediacodecs/VXEncoderSettings.h"

#include <string_view>

namespace Vexlor::Tool
{

namespace
{

/// Whatever the name looks like, it is a file's.
std::string FileName(const std::string& path)
{
    const bool isPlain = !path.starts_with('-') && path.find(':') == std::string::npos;
    return isPlain ? path : "file:" + path;
}

/// A stream's options, each with the letter of its kind.
class StreamOptions
{
public:
    StreamOptions(FfmpegCommand& command, const std::string& container, char kind)
        : m_command(command), m_container(container), m_kind(kind)
    {
    }

    void Add(const std::string& option, const std::string& value)
    {
        m_command.streams.push_back('-' + option + ':' + m_kind);
        m_command.streams.push_back(value);
    }

    /// Chooses the source's stream and its encoder; the answer is what frames must be like.
    VXEncoderSettings AddEncoder(const IVXCodecParameter& stream, int number)
    {
        auto settings = EncoderSettingsFor(stream);
        if (!settings.complaint.empty())
            throw Failure(m_command.output + ": " + settings.complaint);
        m_command.changes.insert(m_command.changes.end(), settings.changes.begin(), settings.changes.end());
        m_command.streams.insert(m_command.streams.end(), {"-map", "0:" + std::to_string(number)});
        Add("c", settings.encoder);
        for (const auto& [option, value] : settings.options)
            Add(option, value);
        if (const auto tag = MuxerTagFor(m_container, stream); !tag.empty())
            Add("tag", tag);
        return settings;
    }

private:
    FfmpegCommand& m_command;
    const std::string& m_container;
    char m_kind;
};

} // namespace

std::vector<std::string> FfmpegCommand::Arguments() const
{
    auto arguments = inputs;
    arguments.insert(arguments.end(), streams.begin(), streams.end());
    arguments.push_back(output);
    return arguments;
}

FfmpegCommand FfmpegCommandFor(const MediaMatch& match, const std::string& source, const std::string& output,
                               PictureFitting fitting)
{
    const auto container = match.output->FormatName();
    const auto muxer = MuxerFor(container);
    if (muxer.empty())
        throw Failure(output + ": the container " + Quoted(container) + " cannot be written here");
    const auto from = match.SourceStreams();
    const auto to = match.OutputStreams();
    if (const auto obstacle = StreamObstacle(*match.output); !obstacle.empty())
        throw Failure(source + ": " + obstacle);
    FfmpegCommand command{{"-i", FileName(source)}, {}, FileName(output), {}};
    if (!IsNamedAs(container, output))
        command.changes.push_back("the name " + Quoted(output) + " does not end as " + container +
                                  " files do");
    if (const auto& video = to.video.parameter)
    {
        StreamOptions options(command, container, 'v');
        const auto settings = options.AddEncoder(*video, match.media.videoStream);
        options.Add("filter", PictureFilters(*from.video.parameter, *video, settings, fitting));
    }
    if (const auto& audio = to.audio.parameter)
    {
        StreamOptions options(command, container, 'a');
        const auto settings = options.AddEncoder(*audio, match.media.audioStream);
        options.Add("filter", SoundFilters(*from.audio.parameter, *audio, settings));
    }
    for (const auto& [name, value] : MuxerOptionsFor(container))
        command.streams.insert(command.streams.end(), {'-' + name, value});
    command.streams.insert(command.streams.end(), {"-f", muxer});
    return command;
}

std::string ShellText(const std::vector<std::string>& words)
{
    constexpr std::string_view kPlain =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789@%+=:,./_-";
    std::string text;
    for (const auto& word : words)
    {
        text += text.empty() ? "" : " ";
        if (!word.empty() && word.find_first_not_of(kPlain) == std::string::npos)
        {
            text += word;
            continue;
        }
        text += '\'';
        for (const char letter : word)
            text += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
        text += '\'';
    }
    return text;
}

} // namespace Vexlor::Tool
