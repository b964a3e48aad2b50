#include "fuzz/ChoiceReader.h"
#include "fuzz/Require.h"
#include "fuzz/SomePreset.h"

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXLogSink.h"

#include <sstream>

// Any preset with any current entries and bounds takes any source: what it answers is the same each time,
// keeps the preset and the source as they were, lies within the preset's size and is what the codec itself
// accepts.

namespace
{

using namespace Vexlor;

using Parameter = std::shared_ptr<IVXCodecParameter>;

std::shared_ptr<IVXRational> SomeRational(ChoiceReader& choices)
{
    const int num = choices.Integer();
    return IVXRational::MallocRational(num, choices.Integer());
}

Parameter SomeStream(ChoiceReader& choices)
{
    if (choices.Below(8) == 0)
        return {};
    auto stream = IVXCodecParameter::MallocCodecParamter(SomeCodec(choices));
    stream->SetWidth(choices.Integer());
    stream->SetHeight(choices.Integer());
    stream->SetFramePerSecond(SomeRational(choices));
    stream->SetAspectRatio(SomeRational(choices));
    stream->SetFormat(choices.Integer());
    stream->SetProfile(choices.Integer());
    stream->SetLevel(choices.Integer());
    stream->SetBitrate(choices.Integer());
    stream->SetMinBitrate(choices.Integer());
    stream->SetMaxBitrate(choices.Integer());
    stream->SetBitrateMode(choices.Integer());
    stream->SetSampleRate(choices.Integer());
    stream->SetChannelLayout(choices.Bits(8));
    return stream;
}

std::string Text(const std::shared_ptr<const IVXRational>& rational)
{
    return std::to_string(rational->Num()) + '/' + std::to_string(rational->Den());
}

std::string Text(const std::shared_ptr<const IVXCodecParameter>& stream)
{
    if (!stream)
        return "none";
    std::ostringstream text;
    text << stream->GetCodecID() << ' ' << stream->GetCodecTag() << ' ' << stream->GetWidth() << 'x'
         << stream->GetHeight() << ' ' << Text(stream->GetAspectRatio()) << ' '
         << Text(stream->GetFrameRate()) << ' ' << stream->GetFormat() << ' ' << stream->GetProfile() << ' '
         << stream->GetLevel() << ' ' << stream->GetBitrate() << ' ' << stream->GetMinBitrate() << ' '
         << stream->GetMaxBitrate() << ' ' << stream->GetBitrateMode() << ' ' << stream->GetSampleRate()
         << ' ' << stream->GetChannelLayout();
    return text.str();
}

std::string Text(const IVXFormatParameter& parameter)
{
    return parameter.FormatName() + ' ' + parameter.FormatHint() + '\n' +
           Text(parameter.GetVideoCodecParameter()) + '\n' + Text(parameter.GetAudioCodecParameter());
}

/// What a codec snapped to its own stays where it is when it is snapped again.
void CheckAccepted(const IVXCodecParameter& output, bool isSizeLimited)
{
    const auto codecs = output.GetCodecs(true);
    if (!codecs)
        return;
    if (codecs->GetCodecType() == VXCodecTypeVideo)
    {
        const std::pair size(output.GetWidth(), output.GetHeight());
        Require(isSizeLimited || codecs->BestResolutionFor(size.first, size.second, {}) == size);
        Require(Text(codecs->BestFrameRateForInput(output.GetFrameRate(), {})) ==
                Text(output.GetFrameRate()));
        return;
    }
    Require(codecs->BestSampleRateForInput(output.GetSampleRate(), {}) == output.GetSampleRate());
    Require(codecs->BestChannelLayoutForInput(output.GetChannelLayout(), {}) == output.GetChannelLayout());
}

/// Where the bounds cross, either may be the answer.
void CheckLimited(int size, int max, int min)
{
    Require(max < min ? size == max || size == min : size <= max && size >= min);
}

void CheckOutput(const IVXFormatPreset& preset, const IVXFormatParameter& source,
                 const IVXFormatParameter& output)
{
    Require(output.FormatName() == preset.FormatName());
    const auto video = output.GetVideoCodecParameter();
    const auto audio = output.GetAudioCodecParameter();
    Require(!video || source.GetVideoCodecParameter());
    Require(!audio || source.GetAudioCodecParameter());
    const bool isSizeLimited = preset.MaxWidth() > 0 && preset.MaxHeight() > 0;
    if (video)
        CheckAccepted(*video, isSizeLimited);
    if (video && isSizeLimited)
    {
        CheckLimited(video->GetWidth(), preset.MaxWidth(), preset.MinWidth());
        CheckLimited(video->GetHeight(), preset.MaxHeight(), preset.MinHeight());
    }
    if (audio)
        CheckAccepted(*audio, false);
}

void Check(const IVXFormatPreset& preset, const std::shared_ptr<const IVXFormatParameter>& source)
{
    const auto presetBefore = JsonText(*preset.JsonValue());
    const auto sourceBefore = Text(*source);
    const auto output = preset.MatchForSource(source);
    CheckOutput(preset, *source, *output);
    Require(Text(*preset.MatchForSource(source)) == Text(*output));
    Require(Text(*preset.Clone()->MatchForSource(source)) == Text(*output));
    Require(Text(*preset.DefaultFormatParameter()) == Text(*preset.Clone()->DefaultFormatParameter()));
    Require(JsonText(*preset.JsonValue()) == presetBefore);
    Require(Text(*source) == sourceBefore);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const auto s_log = SetLogSink([](IVXLogConfig::LogLevel, std::string_view) {});
    ChoiceReader choices(bytes, size);
    const auto preset = SomePreset(choices);
    const auto source = IVXFormatParameter::MallocFormatParameter("", "");
    source->SetVideoCodecParameter(SomeStream(choices));
    source->SetAudioCodecParameter(SomeStream(choices));
    Check(*preset, source);
    return 0;
}
