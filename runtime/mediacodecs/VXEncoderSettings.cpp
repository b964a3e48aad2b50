#include "VXEncoderSettings.h"

#include "CodecTable.h"
#include "CodecTags.h"
#include "EncoderSetup.h"
#include "FFmpegQuiet.h"
#include "FormatTable.h"
#include "IVXCodecParameter.h"

extern "C"
{
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <set>
#include <string_view>

namespace Vexlor
{

namespace
{

// What the program learns from the frames and the muxer.
constexpr std::array<std::string_view, 13> kToldByFrames{
    "ac",           "ar",         "aspect",      "ch_layout", "channel_layout", "channels",  "flags",
    "pixel_format", "sample_fmt", "sample_rate", "sar",       "time_base",      "video_size"};

struct FreeText
{
    void operator()(std::uint8_t* text) const { av_free(text); }
};

std::optional<std::string> ValueOf(AVCodecContext& context, const char* option)
{
    std::uint8_t* text = nullptr;
    if (av_opt_get(&context, option, 0, &text) < 0 || !text)
        return {};
    const std::unique_ptr<std::uint8_t, FreeText> owned(text);
    return reinterpret_cast<const char*>(text);
}

bool IsToldByFrames(const AVCodecContext& context, std::string_view option)
{
    if (option == "bits_per_raw_sample") // samples are as wide as their format unless they are told narrower
        return context.bits_per_raw_sample == 8 * av_get_bytes_per_sample(context.sample_fmt);
    return std::ranges::find(kToldByFrames, option) != kToldByFrames.end();
}

/// Options of a context that are not as the encoder itself has them, each by the first of its names.
std::vector<std::pair<std::string, std::string>> ChangedOptions(AVCodecContext& context)
{
    const EncoderContext fresh(avcodec_alloc_context3(context.codec));
    std::vector<std::pair<std::string, std::string>> changed;
    std::set<int> told;
    const AVOption* option = nullptr;
    while (fresh && (option = av_opt_next(&context, option)))
    {
        if (option->type == AV_OPT_TYPE_CONST || IsToldByFrames(context, option->name))
            continue;
        const auto value = ValueOf(context, option->name);
        if (value && value != ValueOf(*fresh, option->name) && told.insert(option->offset).second)
            changed.emplace_back(option->name, *value);
    }
    return changed;
}

std::string LayoutOf(const AVCodecContext& context)
{
    std::array<char, 128> name{};
    const int size = av_channel_layout_describe(&context.ch_layout, name.data(), name.size());
    return size > 0 ? name.data() : std::string();
}

std::string TextOf(const char* name) { return name ? name : ""; }

void AddFrames(VXEncoderSettings& settings, const AVCodecContext& context)
{
    settings.isFullRange = context.color_range == AVCOL_RANGE_JPEG;
    if (context.codec_type == AVMEDIA_TYPE_VIDEO)
    {
        settings.format = TextOf(av_get_pix_fmt_name(context.pix_fmt));
        return;
    }
    settings.format = TextOf(av_get_sample_fmt_name(context.sample_fmt));
    settings.layout = LayoutOf(context);
}

bool IsPrintable(std::uint32_t tag)
{
    for (unsigned shift = 0; shift < 32; shift += 8)
        if ((tag >> shift & 0xFFU) <= ' ' || (tag >> shift & 0xFFU) > '~')
            return false;
    return true;
}

// A text that begins with a digit could be read as a number.
std::string TagText(std::uint32_t tag)
{
    const auto first = tag & 0xFFU;
    if (!IsPrintable(tag) || (first >= '0' && first <= '9'))
        return std::to_string(tag);
    std::string text;
    for (unsigned shift = 0; shift < 32; shift += 8)
        text += static_cast<char>(tag >> shift & 0xFFU);
    return text;
}

} // namespace

VXEncoderSettings EncoderSettingsFor(const IVXCodecParameter& stream)
{
    const FFmpegQuiet quiet;
    auto prepared = PrepareEncoder(stream, {});
    VXEncoderSettings settings;
    settings.changes = std::move(prepared.changes);
    settings.complaint = std::move(prepared.complaint);
    if (!prepared.context)
        return settings;
    settings.encoder = prepared.context->codec->name;
    settings.options = ChangedOptions(*prepared.context);
    settings.options.insert(settings.options.end(), prepared.options.begin(), prepared.options.end());
    AddFrames(settings, *prepared.context);
    return settings;
}

std::string MuxerFor(const std::string& formatName)
{
    const auto* format = FindFormat(formatName);
    return format ? std::string(format->muxer) : std::string();
}

bool NeedsPicture(const std::string& formatName)
{
    const auto* format = FindFormat(formatName);
    return format && format->needsPicture;
}

bool IsNamedAs(const std::string& formatName, const std::string& path)
{
    const auto* format = FindFormat(formatName);
    return !format || HasEndingOf(*format, path);
}

std::string MuxerTagFor(const std::string& formatName, const IVXCodecParameter& stream)
{
    const auto* muxer = av_guess_format(MuxerFor(formatName).c_str(), nullptr, nullptr);
    const auto* codec = FindCodec(stream.GetCodecID());
    if (!muxer || !codec || stream.GetCodecTag() == 0)
        return {};
    AVCodecParameters encoded{};
    encoded.codec_id = codec->avID;
    const auto tag = WritableTag(*muxer, encoded, stream.GetCodecTag());
    return tag == 0 ? std::string() : TagText(tag);
}

std::vector<std::pair<std::string, std::string>> MuxerOptionsFor(const std::string& formatName)
{
    return MuxerOptions(MuxerFor(formatName));
}

} // namespace Vexlor
