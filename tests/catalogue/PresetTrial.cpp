#include "PresetTrial.h"

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "IVXRational.h"
#include "PresetPaths.h"
#include "Promises.h"
#include "Sources.h"
#include "StreamLine.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/EncoderSetup.h"
#include "runtime/mediacodecs/FFmpegQuiet.h"
#include "runtime/mediacodecs/FormatTable.h"
#include "runtime/mediacodecs/VXEncoderSettings.h"
#include "tests/encode/Encoding.h"
#include "tests/encode/Muxing.h"
#include "tests/encode/StreamOutline.h"
#include "tests/encode/WalkCosts.h"
#include "tests/foundation/TestFolder.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <map>

namespace Vexlor
{

namespace
{

using Stream = std::shared_ptr<IVXCodecParameter>;

bool IsVideo(const IVXCodecParameter& stream) { return stream.GetCodecType() == VXCodecTypeVideo; }

int FramesOfASecond(const IVXCodecParameter& stream)
{
    return std::max(2, static_cast<int>(std::ceil(stream.GetFrameRate()->GetDoubleValue())));
}

// The quickest way of libx264 leaves out what makes a stream more than Baseline.
std::string OptionsOf(const std::string& encoder)
{
    return encoder == "libx264" ? "preset=superfast" : QuickOptionsOf(encoder);
}

/// One preset's trial.
class Trial
{
public:
    explicit Trial(const PlacedPreset& placed)
        : m_preset(placed.preset), m_format(FindFormat(m_preset->FormatName()))
    {
        m_tried.path = placed.path;
        m_tried.marks = std::string(kEncodedSources, ' ');
    }

    void Try(std::size_t source);
    TriedPreset Taken() { return std::move(m_tried); }

    std::vector<std::size_t> SourcesWithOutput() const;

private:
    std::shared_ptr<IVXFormatParameter> Match(std::size_t source) const
    {
        return m_preset->MatchForSource(ParameterOf(Sources()[source]));
    }
    const EncodedStream* Encoded(const Stream& stream);
    EncodedStream Encode(const IVXCodecParameter& stream);
    void Write(const std::vector<Stream>& streams);
    void TellChanges(const EncoderSetup& setup, const IVXCodecParameter& stream);
    void Tell(const Difference& difference, const IVXCodecParameter& stream);

    std::shared_ptr<const IVXFormatPreset> m_preset;
    const FormatRow* m_format;
    std::map<std::string, EncodedStream> m_encoded; ///< many sources become the same
    TestFolder m_folder;
    TriedPreset m_tried;
};

std::vector<Stream> StreamsOf(const IVXFormatParameter& output)
{
    std::vector<Stream> streams;
    for (const auto& stream : {output.GetVideoCodecParameter(), output.GetAudioCodecParameter()})
        if (stream)
            streams.push_back(std::const_pointer_cast<IVXCodecParameter>(stream));
    return streams;
}

std::vector<std::size_t> Trial::SourcesWithOutput() const
{
    std::vector<std::size_t> sources;
    for (std::size_t source = 0; source < kEncodedSources; ++source)
    {
        const auto output = Match(source);
        const bool isRefused = NeedsPicture(m_preset->FormatName()) && !output->GetVideoCodecParameter();
        if (!isRefused && !StreamsOf(*output).empty())
            sources.push_back(source);
    }
    return sources;
}

std::string SampleShape(const IVXCodecParameter& stream)
{
    const auto ratio = stream.GetAspectRatio();
    return ratio ? std::to_string(ratio->Num()) + ':' + std::to_string(ratio->Den()) : "";
}

EncodedStream Refused(const std::string& reason)
{
    EncodedStream stream;
    stream.complaint = reason;
    return stream;
}

// Equal bounds exclude each other, so a bitrate that a preset fixes may be matched as one bit a second less.
bool IsNear(const EncoderSetup& setup, const IVXCodecParameter& stream)
{
    return setup.context && std::abs(setup.context->bit_rate - stream.GetBitrate()) <= 1;
}

void Trial::TellChanges(const EncoderSetup& setup, const IVXCodecParameter& stream)
{
    for (const auto& change : setup.changes)
    {
        const auto property = change.substr(0, change.find(' '));
        if (property != "bitrate" || !IsNear(setup, stream))
            Tell({property, change}, stream);
    }
}

EncodedStream Trial::Encode(const IVXCodecParameter& stream)
{
    const auto names = stream.GetCodecs(true)->Names();
    if (names.empty())
        return Refused("no encoder here");
    const auto setup = OpenEncoder(
        stream, {names.front(), WantsGlobalHeader(std::string(m_format->muxer)), OptionsOf(names.front())});
    TellChanges(setup, stream);
    if (!setup.context)
        return Refused("not opened: " + setup.complaint);
    return IsVideo(stream) ? EncodePictures(*setup.context, FramesOfASecond(stream))
                           : EncodeSound(*setup.context);
}

const EncodedStream* Trial::Encoded(const Stream& stream)
{
    const auto key = StreamOutline(*stream) + ", samples " + SampleShape(*stream);
    auto found = m_encoded.find(key);
    if (found == m_encoded.end())
        found = m_encoded.emplace(key, Encode(*stream)).first;
    if (found->second.complaint.empty())
        return &found->second;
    m_tried.failures.Add(found->second.complaint, key);
    return nullptr;
}

void Trial::Tell(const Difference& difference, const IVXCodecParameter& stream)
{
    const auto excuse = ExcuseOf(difference, m_preset->FormatName(), stream.GetCodecID());
    auto& findings = excuse.empty() ? m_tried.failures : m_tried.notKept;
    findings.Add(excuse.empty() ? difference.text : excuse, StreamOutline(stream));
}

void Trial::Write(const std::vector<Stream>& streams)
{
    const auto path =
        m_folder / ("trial." + std::string(m_format->endings.substr(0, m_format->endings.find(' '))));
    std::vector<MuxedStream> muxed;
    for (const auto& stream : streams)
        if (const auto* encoded = Encoded(stream))
            muxed.push_back({encoded, stream->GetCodecTag()});
    if (muxed.size() < streams.size())
        return;
    const auto error = WriteFile(muxed, std::string(m_format->muxer), path);
    if (!error.empty())
        return m_tried.failures.Add("is not written: " + error, StreamOutline(*streams.front()));
    for (const auto& stream : streams)
        for (const auto& difference : BrokenPromises(path, m_preset->FormatName(), *stream))
            Tell(difference, *stream);
}

void Trial::Try(std::size_t source)
{
    const auto start = std::chrono::steady_clock::now();
    const int before = m_tried.failures.Count();
    Write(StreamsOf(*Match(source)));
    m_tried.marks[source] = m_tried.failures.Count() == before ? '+' : '!';
    m_tried.seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

TriedPreset TryPreset(const PlacedPreset& placed, std::size_t turn, std::size_t step)
{
    const FFmpegQuiet quiet;
    Trial trial(placed);
    const auto sources = trial.SourcesWithOutput();
    for (std::size_t i = turn % std::min(step, sources.size()); i < sources.size(); i += step)
        trial.Try(sources[i]);
    auto tried = trial.Taken();
    for (std::size_t source = 0; source < kEncodedSources; ++source)
        if (std::ranges::find(sources, source) == sources.end())
            tried.marks[source] = '.';
    return tried;
}

} // namespace Vexlor
