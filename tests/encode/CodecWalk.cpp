#include "tests/encode/CodecWalk.h"

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/CodecTable.h"
#include "runtime/mediacodecs/EncoderSetup.h"
#include "runtime/mediacodecs/FFmpegQuiet.h"
#include "tests/encode/CodecChoices.h"
#include "tests/encode/Container.h"
#include "tests/encode/Encoding.h"
#include "tests/encode/Muxing.h"
#include "tests/encode/OfferedLabels.h"
#include "tests/encode/Pairwise.h"
#include "tests/encode/ReadBack.h"
#include "tests/encode/StreamOutline.h"
#include "tests/encode/WalkCosts.h"
#include "tests/foundation/TestFolder.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <iterator>
#include <map>
#include <set>

namespace Vexlor
{

namespace
{

bool IsVideo(const IVXCodecParameter& stream) { return stream.GetCodecType() == VXCodecTypeVideo; }

using Size = std::pair<int, int>;

Size SizeOf(const IVXCodecParameter& stream) { return {stream.GetWidth(), stream.GetHeight()}; }

/// One codec's walk.
class Walk
{
public:
    explicit Walk(int codecID)
        : m_codecID(codecID), m_preset(IVXCodecPreset::MallocCodecPreset(codecID)),
          m_containers(ContainersOf(codecID))
    {
        const auto codecs = IVXCodecs::MallocCodecs(codecID, true);
        m_walked.codec = codecs->GetCodecName();
        m_walked.encoder = codecs->Names().front();
        for (const auto& container : m_containers)
            m_walked.containers += (m_walked.containers.empty() ? "" : " ") + container.name;
    }

    WalkedCodec Taken() { return std::move(m_walked); }

    void All();

private:
    void Try(const PairwiseCase& entries);
    void TellWhatIsInVain(const std::vector<PairwiseCase>& cases);
    std::shared_ptr<IVXCodecParameter> Match(const PairwiseCase& entries) const;
    bool IsLeftOut(const IVXCodecParameter& stream);
    bool IsLeftOutIn(const Container& container, const IVXCodecParameter& stream);
    void TryIn(const Container& container, const PairwiseCase& entries);
    const EncodedStream& Encoded(const IVXCodecParameter& stream, bool globalHeader);
    EncodedStream Encode(const IVXCodecParameter& stream, bool globalHeader);
    const EncodedStream* Companion(const Container& container);
    void Write(const Container& container, const EncodedStream& encoded, const IVXCodecParameter& asked);

    int m_codecID;
    std::shared_ptr<IVXCodecPreset> m_preset;
    std::vector<Container> m_containers;
    std::map<std::string, EncodedStream> m_encoded; // of one case: containers that are told the same share it
    std::map<std::string, EncodedStream> m_companions; // by container
    std::map<std::pair<std::string, Size>, int>
        m_tries;                     // by container, where that has sizes of its own, and size
    Size m_size;                     // of the case
    bool m_hasOfferedBitrate = true; // of the case
    std::set<std::string> m_reasons; // of losses so far
    TestFolder m_folder;
    WalkedCodec m_walked;
};

EncodedStream Walk::Encode(const IVXCodecParameter& stream, bool globalHeader)
{
    const auto setup =
        OpenEncoder(stream, {m_walked.encoder, globalHeader, QuickOptionsOf(m_walked.encoder)});
    for (const auto& change : setup.changes)
    {
        const bool isExpected = IsExpectedToGiveWay(change, m_codecID, m_hasOfferedBitrate);
        if (isExpected)
            m_walked.gaveWay.Add(change.substr(0, change.find(' ')), change);
        else
            m_walked.failures.Add("is offered, yet " + change, StreamOutline(stream));
    }
    EncodedStream encoded;
    if (!setup.context)
        encoded.complaint = "not opened: " + setup.complaint;
    else
        encoded = IsVideo(stream) ? EncodePictures(*setup.context, FramesOf(stream, m_walked.encoder))
                                  : EncodeSound(*setup.context);
    if (!encoded.complaint.empty())
        m_walked.failures.Add(encoded.complaint, StreamOutline(stream));
    return encoded;
}

// Their headers stand in the stream or in the container, as the encoder is told; those of all others have one
// place.
constexpr std::array kTwoPlaces{VXCodecID_H264, VXCodecID_HEVC,  VXCodecID_MPEG4,
                                VXCodecID_DIVX, VXCodecID_MPEG1, VXCodecID_MPEG2};

bool HasTwoPlaces(int codecID) { return std::ranges::find(kTwoPlaces, codecID) != kTwoPlaces.end(); }

const EncodedStream& Walk::Encoded(const IVXCodecParameter& stream, bool globalHeader)
{
    const bool isGlobal = globalHeader || !HasTwoPlaces(m_codecID);
    const auto key = StreamOutline(stream) + (isGlobal ? " with a global header" : "");
    const auto found = m_encoded.find(key);
    if (found != m_encoded.end())
        return found->second;
    return m_encoded.emplace(key, Encode(stream, isGlobal)).first->second;
}

const EncodedStream* Walk::Companion(const Container& container)
{
    const auto found = m_companions.find(container.name);
    if (found != m_companions.end())
        return &found->second;
    const auto picture = container.MatchCompanion();
    if (!picture)
        return nullptr;
    const auto setup = OpenEncoder(*picture, {"", WantsGlobalHeader(container.muxer), ""});
    if (!setup.context)
        return nullptr;
    return &m_companions
                .emplace(container.name,
                         EncodePictures(*setup.context, FramesOf(*picture, setup.context->codec->name)))
                .first->second;
}

void Walk::Write(const Container& container, const EncodedStream& encoded, const IVXCodecParameter& asked)
{
    const auto path = m_folder / ("walk." + container.ending);
    const auto example = StreamOutline(asked);
    std::vector<MuxedStream> streams{{&encoded, asked.GetCodecTag()}};
    if (const auto* companion = Companion(container))
        streams.insert(streams.begin(), {companion, 0});
    const auto error = WriteFile(streams, container.muxer, path);
    if (!error.empty())
        return m_walked.failures.Add(container.name + " is not written: " + error, example);
    ++m_walked.files;
    for (const auto& difference : ReadBack(path, container.name, asked))
    {
        const auto reason = ReasonOf(difference, container.name, m_codecID);
        m_reasons.insert(reason);
        auto& findings = reason.empty() ? m_walked.failures : m_walked.notCarried;
        findings.Add(container.name + ": " + (reason.empty() ? difference.text : reason), example);
    }
}

bool Walk::IsLeftOut(const IVXCodecParameter& stream)
{
    int& tries = m_tries[{"", SizeOf(stream)}];
    return ++tries > AreaOf(stream).tries;
}

// All sizes become a few in a container of discs, which need not be tried as often as there are sizes.
bool Walk::IsLeftOutIn(const Container& container, const IVXCodecParameter& stream)
{
    constexpr int kMost = 24;
    if (SizeOf(stream) == m_size)
        return false;
    int& tries = m_tries[{container.name, SizeOf(stream)}];
    return ++tries > std::min(kMost, AreaOf(stream).tries);
}

void Walk::TryIn(const Container& container, const PairwiseCase& entries)
{
    Choose(*container.codec, entries);
    const auto stream = container.Match(BoundsOf(*container.codec, entries));
    if (IsLeftOutIn(container, *stream))
        return;
    const auto& encoded = Encoded(*stream, WantsGlobalHeader(container.muxer));
    if (encoded.complaint.empty() && AreaOf(*stream).isWritten)
        Write(container, encoded, *stream);
}

// What the codec's preset answers on its own.
std::shared_ptr<IVXCodecParameter> Walk::Match(const PairwiseCase& entries) const
{
    Choose(*m_preset, entries);
    const auto bounds = BoundsOf(*m_preset, entries);
    const auto source = AutoSource();
    const bool isVideo = FindCodec(m_codecID)->type == VXCodecTypeVideo;
    return m_preset->MatchForSource(isVideo ? source->GetVideoCodecParameter()
                                            : source->GetAudioCodecParameter(),
                                    bounds.max, bounds.min);
}

void Walk::Try(const PairwiseCase& entries)
{
    const auto stream = Match(entries);
    if (IsLeftOut(*stream))
    {
        ++m_walked.leftOut;
        return;
    }
    m_size = SizeOf(*stream);
    m_hasOfferedBitrate = HasOfferedBitrate(entries);
    m_encoded.clear();
    if (m_containers.empty()) // encoded all the same
        Encode(*stream, false);
    for (const auto& container : m_containers)
        TryIn(container, entries);
    ++m_walked.combinations;
}

// Labels are looked for in all cases, whatever the step, since that needs no encoder.
void Walk::TellWhatIsInVain(const std::vector<PairwiseCase>& cases)
{
    OfferedLabels labels(*m_preset);
    for (const auto& entries : cases)
        labels.TakeOffKept(*Match(entries));
    for (const auto& label : labels.Left())
        m_walked.failures.Add("is offered, yet never kept: " + label, m_walked.codec);
    for (const auto& reason : ReasonsFor(m_codecID))
        if (StepOf() == 1 && !m_reasons.contains(reason))
            m_walked.failures.Add("nothing is lost any more for this reason: " + reason, m_walked.codec);
}

void Walk::All()
{
    const auto start = std::chrono::steady_clock::now();
    auto cases = PairwiseCases(ChoiceCounts(*m_preset));
    std::ranges::move(LabelCases(*m_preset), std::back_inserter(cases));
    for (std::size_t index = 0; index < cases.size(); index += StepOf())
        Try(cases[index]);
    TellWhatIsInVain(cases);
    m_walked.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

WalkedCodec WalkCodec(int codecID)
{
    const FFmpegQuiet quiet;
    Walk walk(codecID);
    walk.All();
    return walk.Taken();
}

} // namespace Vexlor
