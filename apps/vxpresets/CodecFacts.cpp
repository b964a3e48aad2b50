#include "CodecFacts.h"

#include "apps/host/Units.h"

#include "IVXCodecs.h"
#include "IVXFormat.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <algorithm>
#include <set>

namespace Vexlor::Tool
{

namespace
{

std::string Span(const std::string& least, const std::string& most)
{
    return least == most ? least : least + " to " + most;
}

std::string SizeOf(const std::pair<int, int>& size) { return SizeText(size.first, size.second); }

std::string SizeRange(const IVXCodecs& model)
{
    return Span(SizeText(model.MinWidth({}), model.MinHeight({})),
                SizeText(model.MaxWidth({}), model.MaxHeight({})));
}

std::vector<std::string> Sizes(const IVXCodecs& model)
{
    const auto sizes = model.SupportedResolutions({});
    return sizes.empty() ? std::vector{SizeRange(model)} : TextsOf(sizes, SizeOf);
}

std::vector<std::string> FrameRates(const IVXCodecs& model)
{
    const auto rates = model.SupportedFrameRates({});
    if (rates.empty())
        return {Span(FrameRateText(*model.MinFrameRate({})), FrameRateText(*model.MaxFrameRate({})))};
    return TextsOf(rates, [](const auto& rate) { return FrameRateText(*rate); });
}

} // namespace

bool Codec::IsVideo() const { return model->GetCodecType() == VXCodecTypeVideo; }
std::string Codec::Type() const { return IsVideo() ? "video" : "audio"; }

std::vector<Codec> AllCodecs()
{
    std::set<int> ids;
    for (const auto& name : VXMediaCodecSupportOutputAllMediaFormats())
    {
        const auto format = IVXFormat::MallocFormat(name, {});
        for (const auto& list : {format->VideoCodecIDs(), format->AudioCodecIDs()})
            ids.insert(list.begin(), list.end());
    }
    std::vector<Codec> codecs;
    for (const int id : ids)
        if (auto model = IVXCodecs::MallocCodecs(id, true))
            codecs.push_back({id, std::move(model)});
    return codecs;
}

std::vector<std::string> FormatNames(const Codec& codec)
{
    return TextsOf(codec.model->SupportedFormats({}), codec.IsVideo() ? PixFormatName : SampleFormatName);
}

std::vector<std::string> ProfileNames(const Codec& codec)
{
    return TextsOf(codec.model->SupportedProfiles({}),
                   [&codec](int profile) { return codec.model->ProfileName(profile); });
}

std::vector<std::string> LevelNames(const Codec& codec)
{
    return TextsOf(codec.model->SupportedLevels({}),
                   [&codec](int level) { return codec.model->LevelName(level); });
}

std::vector<std::string> LayoutNames(const Codec& codec)
{
    return TextsOf(codec.model->SupportedChannelLayouts({}), LayoutText);
}

std::vector<NamedList> Accepts(const Codec& codec)
{
    std::vector<NamedList> lists;
    if (codec.IsVideo())
        lists = {{"Sizes", Sizes(*codec.model)}, {"Frame rates", FrameRates(*codec.model)}};
    else
        lists = {
            {"Sample rates", TextsOf(codec.model->SupportedSampleRates({}), VXMediaCodecFormatSamplerate)},
            {"Channel layouts", LayoutNames(codec)}};
    lists.push_back({codec.IsVideo() ? "Pixel formats" : "Sample formats", FormatNames(codec)});
    lists.push_back({"Profiles", ProfileNames(codec)});
    lists.push_back({"Levels", LevelNames(codec)});
    lists.push_back({"Bitrates", TextsOf(codec.model->SupportedBitrates(), BitrateText)});
    std::erase_if(lists, [](const NamedList& list) { return list.entries.empty(); });
    return lists;
}

std::string Summary(const Codec& codec)
{
    if (codec.IsVideo())
        return SizeRange(*codec.model) + ", up to " + FrameRateText(*codec.model->MaxFrameRate({}));
    const auto rates = codec.model->SupportedSampleRates({});
    if (rates.empty())
        return {};
    const auto [lowest, highest] = std::ranges::minmax(rates);
    return Span(VXMediaCodecFormatSamplerate(lowest), VXMediaCodecFormatSamplerate(highest));
}

} // namespace Vexlor::Tool
