#include "tests/encode/StreamOutline.h"

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <sstream>

namespace Vexlor
{

namespace
{

void TellPicture(std::ostream& text, const IVXCodecParameter& stream)
{
    const auto rate = stream.GetFrameRate();
    text << stream.GetWidth() << 'x' << stream.GetHeight() << " at " << rate->Num() << '/' << rate->Den()
         << ", " << PixFormatName(stream.GetFormat());
}

void TellSound(std::ostream& text, const IVXCodecParameter& stream)
{
    text << stream.GetSampleRate() << " Hz " << VXChannelLayoutName(stream.GetChannelLayout()) << ", "
         << SampleFormatName(stream.GetFormat());
}

} // namespace

std::string StreamOutline(const IVXCodecParameter& stream)
{
    std::ostringstream text;
    if (stream.GetCodecType() == VXCodecTypeVideo)
        TellPicture(text, stream);
    else
        TellSound(text, stream);
    const auto codecs = stream.GetCodecs(true);
    if (const auto profile = codecs->ProfileName(stream.GetProfile()); !profile.empty())
        text << ", profile " << profile;
    if (const auto level = codecs->LevelName(stream.GetLevel()); !level.empty())
        text << ", level " << level;
    text << ", " << stream.GetBitrate() << " b/s";
    return text.str();
}

} // namespace Vexlor
