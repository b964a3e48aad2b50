#include "StreamLine.h"

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <cstdint>

namespace Vexlor
{

namespace
{

/// Words with a blank in between; an empty word leaves none.
class Line
{
public:
    void Add(const std::string& word)
    {
        if (!word.empty())
            m_text += (m_text.empty() ? "" : " ") + word;
    }
    const std::string& Text() const { return m_text; }

private:
    std::string m_text;
};

std::string ProfileAndLevelOf(const IVXCodecParameter& stream)
{
    const auto codecs = stream.GetCodecs(true);
    const bool hasProfile = stream.GetProfile() != IVXCodecs::VXProfileUnknown;
    const bool hasLevel = stream.GetLevel() != IVXCodecs::VXLevelUnknown;
    if (!codecs || (!hasProfile && !hasLevel))
        return {};
    return (hasProfile ? codecs->ProfileName(stream.GetProfile()) : "") +
           (hasLevel ? '@' + codecs->LevelName(stream.GetLevel()) : "");
}

std::string RatioOf(const IVXRational& ratio, char between)
{
    return std::to_string(ratio.Num()) + between + std::to_string(ratio.Den());
}

std::string AspectOf(const IVXCodecParameter& stream)
{
    const auto ratio = stream.GetAspectRatio();
    const bool isSquare = !ratio || !ratio->IsValid() || ratio->Num() == ratio->Den();
    return isSquare ? "" : RatioOf(*ratio, ':');
}

std::string TagOf(std::uint32_t tag)
{
    std::string text;
    for (; tag != 0; tag >>= 8)
        text += static_cast<char>(tag & 0xFF);
    return text;
}

std::string BitrateOf(const IVXCodecParameter& stream)
{
    return stream.GetBitrate() == 0 ? "" : std::to_string(stream.GetBitrate());
}

std::string NameOf(const IVXCodecParameter& stream)
{
    return IVXCodecs::DefaultCodecName(stream.GetCodecID(), true);
}

std::string PictureOf(const IVXCodecParameter& stream)
{
    Line line;
    line.Add(NameOf(stream));
    line.Add(std::to_string(stream.GetWidth()) + 'x' + std::to_string(stream.GetHeight()));
    line.Add(RatioOf(*stream.GetFrameRate(), '/'));
    line.Add(PixFormatName(stream.GetFormat()));
    line.Add(ProfileAndLevelOf(stream));
    line.Add(AspectOf(stream));
    line.Add(BitrateOf(stream));
    line.Add(TagOf(stream.GetCodecTag()));
    return line.Text();
}

std::string SoundOf(const IVXCodecParameter& stream)
{
    Line line;
    line.Add(NameOf(stream));
    line.Add(std::to_string(stream.GetSampleRate()));
    line.Add(stream.GetChannelLayout() == 0 ? "" : VXChannelLayoutName(stream.GetChannelLayout()));
    line.Add(SampleFormatName(stream.GetFormat()));
    line.Add(ProfileAndLevelOf(stream));
    line.Add(BitrateOf(stream));
    line.Add(TagOf(stream.GetCodecTag()));
    return line.Text();
}

} // namespace

std::string LineOf(const IVXFormatParameter& parameter)
{
    const auto picture = parameter.GetVideoCodecParameter();
    const auto sound = parameter.GetAudioCodecParameter();
    if (!picture && !sound)
        return "nothing";
    const std::string between = picture && sound ? " + " : "";
    return (picture ? PictureOf(*picture) : "") + between + (sound ? SoundOf(*sound) : "");
}

} // namespace Vexlor
