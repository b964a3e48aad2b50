#include "CodecCapabilities.h"

#include "FFmpegCompat.h"
#include "LevelTable.h"
#include "Lookup.h"
#include "ProfileTable.h"
#include "SampleFormats.h"
#include "VXMediaCodecs.h"

#include <iterator>

namespace Vexlor
{

namespace
{

std::vector<std::string> EncodersOf(const CodecRow& codec)
{
    std::vector<std::string> names;
    ForEachWord(codec.encoders,
                [&names](std::string_view word)
                {
                    std::string name(word);
                    if (avcodec_find_encoder_by_name(name.c_str()))
                        names.push_back(std::move(name));
                });
    return names;
}

// Decoders of graphics cards are left out, as their encoders are.
std::vector<std::string> DecodersOf(const CodecRow& codec)
{
    std::vector<std::string> names;
    void* state = nullptr;
    while (const AVCodec* each = av_codec_iterate(&state))
        if (each->id == codec.avID && av_codec_is_decoder(each) &&
            !(each->capabilities & AV_CODEC_CAP_HARDWARE))
            names.emplace_back(each->name);
    return names;
}

// The values of ours that the encoder lists as its own; all of them when it lists none that we know.
template <class Value, class Listed, class ToListed>
std::vector<Value> Narrowed(std::span<const Value> values, std::span<const Listed> listed, ToListed toListed)
{
    std::vector<Value> taken;
    std::ranges::copy_if(values, std::back_inserter(taken),
                         [&](const Value& value)
                         { return std::ranges::find(listed, toListed(value)) != listed.end(); });
    return taken.empty() ? std::vector<Value>(values.begin(), values.end()) : taken;
}

std::vector<std::uint64_t> MasksOf(std::span<const AVChannelLayout> layouts)
{
    std::vector<std::uint64_t> masks;
    for (const auto& layout : layouts)
        if (layout.order == AV_CHANNEL_ORDER_NATIVE)
            masks.push_back(layout.u.mask);
    return masks;
}

std::vector<int> OfferedProfiles(const CodecRow& codec, std::string_view encoder)
{
    std::vector<int> numbers;
    for (const auto& profile : ProfilesOf(codec.id))
        if (encoder.empty() ? !profile.encoders.empty() : HasWord(profile.encoders, encoder))
            numbers.push_back(profile.number);
    return numbers;
}

std::vector<int> OfferedLevels(const CodecRow& codec)
{
    std::vector<int> numbers;
    for (const auto& level : LevelsOf(codec.id))
        if (!level.onlyRead)
            numbers.push_back(level.number);
    return numbers;
}

// Sides of 1, 2 or 4, so that the larger is a multiple of the smaller.
ChromaBlock LargestBlock(std::span<const int> formats)
{
    ChromaBlock largest;
    for (const int format : formats)
    {
        const auto block = ChromaBlockOf(format);
        largest = {std::max(largest.width, block.width), std::max(largest.height, block.height)};
    }
    return largest;
}

CodecCapabilities Capabilities(const CodecRow& codec)
{
    CodecCapabilities all;
    all.codec = &codec;
    all.encoders = EncodersOf(codec);
    all.decoders = DecodersOf(codec);
    const std::string preferred = all.encoders.empty() ? std::string() : all.encoders.front();
    const AVCodec* encoder = avcodec_find_encoder_by_name(preferred.c_str());
    const auto lists = encoder ? ListsOf(*encoder) : EncoderLists();
    all.formats = codec.type == VXCodecTypeVideo
                      ? Narrowed(codec.formats, lists.pixelFormats, AVPixelFormatOf)
                      : Narrowed(codec.formats, lists.sampleFormats, AVSampleFormatOf);
    const auto masks = MasksOf(lists.layouts);
    all.sampleRates = Narrowed(codec.audio.sampleRates, lists.sampleRates, std::identity());
    all.layouts = Narrowed(codec.audio.layouts, std::span<const std::uint64_t>(masks), std::identity());
    all.profiles = OfferedProfiles(codec, preferred);
    all.levels = OfferedLevels(codec);
    all.block = codec.type == VXCodecTypeVideo ? LargestBlock(all.formats) : ChromaBlock();
    return all;
}

std::vector<CodecCapabilities> AllCapabilities()
{
    std::vector<CodecCapabilities> all;
    std::ranges::transform(CodecTable(), std::back_inserter(all), Capabilities);
    return all;
}

} // namespace

const CodecCapabilities* CapabilitiesOf(int codecID)
{
    static const auto& s_all = *new auto(AllCapabilities()); // in the order of the table, and never destroyed
    const auto* const row = FindCodec(codecID);
    return row ? &s_all[static_cast<std::size_t>(row - CodecTable().data())] : nullptr;
}

} // namespace Vexlor
