#include "HandBrakePreset.h"

#include "HandBrakeNames.h"
#include "ImportedPreset.h"
#include "apps/host/Text.h"
#include "apps/host/document/DocumentTree.h"

#include "IVXFormatPreset.h"

#include <cmath>
#include <cstdlib>
#include <optional>

namespace Vexlor::Tool
{

namespace
{

constexpr const char* kSquare = "samples are made square, with the shape of the picture kept";

std::string MemberPath(const std::string& path, std::string_view member)
{
    return path.empty() ? std::string(member) : path + '.' + std::string(member);
}

/// Reads the members of one preset.
class PresetReader
{
public:
    PresetReader(const DocumentTree& tree, DocumentPosition preset, ImportedPreset& target)
        : m_tree(tree), m_preset(preset), m_target(target)
    {
    }

    void Read()
    {
        if (!ReadContainer())
            return;
        m_target.Preset()->SetDescription(TextIn(m_preset, "PresetDescription"));
        if (ReadVideoEncoder())
            ReadVideo();
        ReadAudioTracks();
        FindTheRest(m_preset, {});
    }

private:
    bool ReadContainer();
    bool ReadVideoEncoder();
    void ReadVideo();
    void ReadSize();
    void ReadFrameRate();
    void ReadQuality();
    void ReadConstantQuality(const ImportSource& source, double slider);
    void ReadAspect();
    void ReadAudioTracks();
    void ReadAudio(DocumentPosition track, const std::string& path);
    std::string AudioCodecOf(DocumentPosition track, const ImportSource& source);
    void ReadMixdown(DocumentPosition track, const std::string& path);
    void FindTheRest(DocumentPosition object, const std::string& path);

    bool IsNeutral(DocumentPosition value) const;
    std::string TextIn(DocumentPosition object, std::string_view member) const;
    std::optional<double> NumberIn(DocumentPosition object, std::string_view member) const;
    ImportSource SourceOf(DocumentPosition object, std::string_view member,
                          const std::string& path = {}) const;
    ImportSource SourceOf(std::string_view member) const { return SourceOf(m_preset, member); }

    const DocumentTree& m_tree;
    DocumentPosition m_preset;
    ImportedPreset& m_target;
};

bool PresetReader::ReadContainer()
{
    const auto source = SourceOf("FileFormat");
    const auto format = TextIn(m_preset, "FileFormat");
    const auto container = HandBrakeContainer(format);
    if (container.empty())
        m_target.LeaveOut(source, format.empty() ? "the preset names no container"
                                                 : "no container here is " + Quoted(format));
    return !container.empty() && m_target.MakeFor(source, container);
}

bool PresetReader::ReadVideoEncoder()
{
    const auto source = SourceOf("VideoEncoder");
    const auto name = TextIn(m_preset, "VideoEncoder");
    const auto* encoder = HandBrakeVideoEncoder(name);
    if (encoder && m_target.Set(source, "video-codecs", std::string(encoder->codec)))
    {
        if (encoder->isHardware)
            m_target.Change(source,
                            Quoted(name) + " becomes the codec; which encoder makes it is not chosen here");
        if (!encoder->format.empty())
            m_target.Set(source, "pixel-format", std::string(encoder->format));
        return true;
    }
    m_target.Set(source, "video-codecs", "none");
    if (!encoder)
        m_target.LeaveOut(source, name.empty() ? "the preset names no video encoder"
                                               : "no codec here is " + Quoted(name));
    return false;
}

void PresetReader::ReadVideo()
{
    ReadSize();
    ReadFrameRate();
    ReadQuality();
    ReadAspect();
    const auto profile = HandBrakeProfile(TextIn(m_preset, "VideoProfile"));
    if (!profile.empty())
        m_target.Set(SourceOf("VideoProfile"), "video-profile", profile);
    const auto level = HandBrakeLevel(TextIn(m_preset, "VideoLevel"));
    if (!level.empty())
        m_target.Set(SourceOf("VideoLevel"), "video-level", level);
}

// The size there is the largest one, into which a picture is fitted.
void PresetReader::ReadSize()
{
    const auto width = NumberIn(m_preset, "PictureWidth").value_or(0);
    const auto height = NumberIn(m_preset, "PictureHeight").value_or(0);
    const bool isBoth = width >= 1 && height >= 1;
    if (isBoth)
        m_target.Set(SourceOf("PictureWidth"), "max-size", WholeText(width) + 'x' + WholeText(height));
    else if (width >= 1 || height >= 1)
        m_target.LeaveOut(SourceOf(width >= 1 ? "PictureWidth" : "PictureHeight"),
                          "a bound of one side bounds nothing here");
}

void PresetReader::ReadFrameRate()
{
    const auto number = NumberIn(m_preset, "VideoFramerate");
    const auto rate = number ? DecimalText(*number) : TextIn(m_preset, "VideoFramerate");
    if (rate.empty() || rate == "0" || Folded(rate) == "auto")
        return;
    const bool isSet = m_target.Set(SourceOf("VideoFramerate"), "frame-rate", rate);
    if (isSet && TextIn(m_preset, "VideoFramerateMode") != "cfr")
        m_target.Change(SourceOf("VideoFramerate"), rate + " frames per second at most becomes that rate");
}

void PresetReader::ReadQuality()
{
    constexpr double kAverageBitrate = 1;
    const auto type = NumberIn(m_preset, "VideoQualityType").value_or(2);
    const auto bitrate = NumberIn(m_preset, "VideoAvgBitrate").value_or(0);
    const auto slider = NumberIn(m_preset, "VideoQualitySlider");
    if (type == kAverageBitrate && bitrate >= 1)
        m_target.Set(SourceOf("VideoAvgBitrate"), "video-bitrate", WholeText(bitrate) + 'k');
    else if (type > kAverageBitrate && slider)
        ReadConstantQuality(SourceOf("VideoQualitySlider"), *slider);
    else
        m_target.LeaveOut(SourceOf("VideoQualityType"), "neither an average bitrate nor a constant quality");
}

void PresetReader::ReadConstantQuality(const ImportSource& source, double slider)
{
    const auto grade = HandBrakeGrade(TextIn(m_preset, "VideoEncoder"), slider);
    if (grade.empty())
        m_target.LeaveOut(source, "the encoder has no scale of quality that is known here");
    else if (m_target.Set(source, "video-quality", grade))
        m_target.Change(source,
                        "a constant quality of " + DecimalText(slider) + " becomes the grade " + grade);
}

void PresetReader::ReadAspect()
{
    const auto mode = Folded(TextIn(m_preset, "PicturePAR"));
    const auto width = NumberIn(m_preset, "PicturePARWidth").value_or(0);
    const auto height = NumberIn(m_preset, "PicturePARHeight").value_or(0);
    if (mode == "custom")
        m_target.Set(SourceOf("PicturePAR"), "sample-aspect", WholeText(width) + ':' + WholeText(height));
    else if (mode == "strict" || mode == "loose" || mode == "auto")
        m_target.Change(SourceOf("PicturePAR"), kSquare);
}

void PresetReader::ReadAudioTracks()
{
    std::uint32_t count = 0;
    m_tree.ForEachIn(m_preset, "AudioList",
                     [&](DocumentPosition track)
                     {
                         const auto path = "AudioList[" + std::to_string(count) + ']';
                         if (count++ == 0)
                             ReadAudio(track, path);
                         else
                             m_target.LeaveOut({path, m_tree[track].begin}, "an output has one sound track");
                     });
    if (count == 0)
        m_target.Set(SourceOf("AudioList"), "audio-codecs", "none");
}

void PresetReader::ReadAudio(DocumentPosition track, const std::string& path)
{
    const auto encoder = SourceOf(track, "AudioEncoder", path);
    const auto codec = AudioCodecOf(track, encoder);
    if (codec.empty() || !m_target.Set(encoder, "audio-codecs", codec))
        return static_cast<void>(m_target.Set(encoder, "audio-codecs", "none"));
    const auto bitrate = NumberIn(track, "AudioBitrate").value_or(0);
    const auto isByQuality = m_tree.Find(track, "AudioTrackQualityEnable");
    if (isByQuality && m_tree.Source(*isByQuality) == "true")
        m_target.LeaveOut(SourceOf(track, "AudioTrackQuality", path),
                          "sound has no quality scale of the encoder here");
    else if (bitrate >= 1 && !IsLossless(codec))
        m_target.Set(SourceOf(track, "AudioBitrate", path), "audio-bitrate", WholeText(bitrate) + 'k');
    const auto rate =
        HandBrakeSampleRate(TextIn(track, "AudioSamplerate"), NumberIn(track, "AudioSamplerate"));
    if (!rate.empty())
        m_target.Set(SourceOf(track, "AudioSamplerate", path), "sample-rate", rate);
    ReadMixdown(track, path);
    FindTheRest(track, path);
}

// What is passed through there is encoded here.
std::string PresetReader::AudioCodecOf(DocumentPosition track, const ImportSource& source)
{
    const auto name = TextIn(track, "AudioEncoder");
    const bool isCopied = name.starts_with("copy");
    auto codec = HandBrakeAudioCodec(isCopied && name.size() > 5 ? name.substr(5) : name);
    if (isCopied && codec.empty())
        codec = HandBrakeAudioCodec(TextIn(m_preset, "AudioEncoderFallback"));
    if (codec.empty())
        m_target.LeaveOut(source, "no codec here is " + Quoted(name));
    else if (isCopied)
        m_target.Change(source, "nothing is passed through here: the sound is encoded with " + codec);
    return codec;
}

void PresetReader::ReadMixdown(DocumentPosition track, const std::string& path)
{
    const auto name = TextIn(track, "AudioMixdown");
    const auto source = SourceOf(track, "AudioMixdown", path);
    if (name.empty() || name == "none")
        return;
    const auto* mixdown = HandBrakeMixdown(name);
    if (!mixdown)
        m_target.LeaveOut(source, "no channel layout here is " + Quoted(name));
    else if (m_target.Set(source, "channels", std::string(mixdown->layout)) && !mixdown->isExact)
        m_target.Change(source, Quoted(name) + " becomes plain " + std::string(mixdown->layout));
}

void PresetReader::FindTheRest(DocumentPosition object, const std::string& path)
{
    m_tree.ForEach(
        object,
        [&](DocumentPosition member)
        {
            const auto name = m_tree.NameOf(member);
            if (IsHandBrakeMemberRead(name) || IsNeutral(member))
                return;
            m_target.LeaveOut({MemberPath(path, name), m_tree[member].name}, HandBrakeReason(name));
        });
}

/// What asks for nothing.
bool PresetReader::IsNeutral(DocumentPosition value) const
{
    const auto& place = m_tree[value];
    const auto text = Folded(m_tree.Source(value));
    if (place.kind == DocumentKind::Array || place.kind == DocumentKind::Object)
        return place.count == 0;
    return text == "false" || text == "null" || text == "0" || text == "0.0" || text == "-1" ||
           text == "-1.0" || text == "\"\"" || text == "\"off\"" || text == "\"none\"" ||
           text == "\"auto\"" || text == "\"default\"" || text == "\"source\"";
}

std::string PresetReader::TextIn(DocumentPosition object, std::string_view member) const
{
    return m_tree.FindText(object, member).value_or("");
}

std::optional<double> PresetReader::NumberIn(DocumentPosition object, std::string_view member) const
{
    const auto value = m_tree.Find(object, member);
    const auto kind = value ? m_tree[*value].kind : DocumentKind::Null;
    if (kind != DocumentKind::Integer && kind != DocumentKind::Fraction)
        return {};
    return std::strtod(std::string(m_tree.Source(*value)).c_str(), nullptr);
}

ImportSource PresetReader::SourceOf(DocumentPosition object, std::string_view member,
                                    const std::string& path) const
{
    const auto value = m_tree.Find(object, member);
    const auto& place = m_tree[value.value_or(object)];
    const auto name = MemberPath(path, member);
    return {name, value ? place.name : place.begin};
}

} // namespace

void ReadHandBrakePreset(const DocumentTree& tree, DocumentPosition preset, ImportedPreset& target)
{
    PresetReader(tree, preset, target).Read();
}

} // namespace Vexlor::Tool
