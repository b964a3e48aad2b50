#include "Commands.h"

#include "Json.h"
#include "ListText.h"
#include "NameSearch.h"
#include "Table.h"
#include "Text.h"
#include "Units.h"

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

struct Codec
{
    int id;
    std::shared_ptr<const IVXCodecs> model;

    bool IsVideo() const { return model->GetCodecType() == VXCodecTypeVideo; }
    std::string Type() const { return IsVideo() ? "video" : "audio"; }
};

/// Every codec that a container takes, by its number.
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

/// "h264" for "H.264": what a user types who leaves out the signs.
std::string WithoutSigns(const std::string& name)
{
    auto letters = Folded(name);
    std::erase_if(letters, [](char letter)
                  { return !(letter >= 'a' && letter <= 'z') && !(letter >= '0' && letter <= '9'); });
    return letters;
}

Codec FindCodec(const std::vector<Codec>& codecs, const std::string& text)
{
    std::vector<Candidate> candidates;
    for (const auto& codec : codecs)
    {
        const auto name = codec.model->GetCodecName();
        candidates.push_back({name, {name, WithoutSigns(name), std::to_string(codec.id)}});
    }
    return codecs[FindByName(candidates, text, "codec", "vxpresets")];
}

template <typename Values, typename Display>
std::vector<std::string> TextsOf(const Values& values, Display display)
{
    std::vector<std::string> texts;
    texts.reserve(values.size());
    for (const auto& value : values)
        texts.push_back(display(value));
    return texts;
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

std::string SizeOf(const std::pair<int, int>& size) { return SizeText(size.first, size.second); }

std::string SizeRange(const IVXCodecs& model)
{
    return SizeText(model.MinWidth({}), model.MinHeight({})) + " to " +
           SizeText(model.MaxWidth({}), model.MaxHeight({}));
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
        return {FrameRateText(*model.MinFrameRate({})) + " to " + FrameRateText(*model.MaxFrameRate({}))};
    return TextsOf(rates, [](const auto& rate) { return FrameRateText(*rate); });
}

/// What the codec accepts, a list for each kind of value.
std::vector<NamedList> Accepts(const Codec& codec)
{
    std::vector<NamedList> lists;
    if (codec.IsVideo())
        lists = {{"Sizes", Sizes(*codec.model)}, {"Frame rates", FrameRates(*codec.model)}};
    else
        lists = {
            {"Sample rates", TextsOf(codec.model->SupportedSampleRates({}), VXMediaCodecFormatSamplerate)},
            {"Channel layouts", TextsOf(codec.model->SupportedChannelLayouts({}), LayoutText)}};
    lists.push_back({codec.IsVideo() ? "Pixel formats" : "Sample formats", FormatNames(codec)});
    lists.push_back({"Profiles", ProfileNames(codec)});
    lists.push_back({"Levels", LevelNames(codec)});
    lists.push_back({"Bitrates", TextsOf(codec.model->SupportedBitrates(), BitrateText)});
    std::erase_if(lists, [](const NamedList& list) { return list.entries.empty(); });
    return lists;
}

std::string CodecText(const Codec& codec, const Style& style)
{
    auto text = Strong(codec.model->GetCodecName(), style) + '\n';
    text += ListText({"Number", {std::to_string(codec.id)}}, style);
    text += ListText({"Type", {codec.Type()}}, style);
    text += ListText({"Encoders", codec.model->Names()}, style);
    for (const auto& list : Accepts(codec))
        text += ListText(list, style);
    return text;
}

/// The lists' ends, for the table of all codecs.
std::string Summary(const Codec& codec)
{
    if (codec.IsVideo())
        return SizeRange(*codec.model) + ", up to " + FrameRateText(*codec.model->MaxFrameRate({}));
    const auto rates = codec.model->SupportedSampleRates({});
    if (rates.empty())
        return {};
    const auto [lowest, highest] = std::ranges::minmax(rates);
    return VXMediaCodecFormatSamplerate(lowest) + " to " + VXMediaCodecFormatSamplerate(highest);
}

std::string AllText(const std::vector<Codec>& codecs, const Style& style)
{
    Table table({"Number", "Codec", "Type", "Accepts", "Encoders"});
    for (const auto& codec : codecs)
        table.Add({std::to_string(codec.id), codec.model->GetCodecName(), codec.Type(), Summary(codec),
                   Joined(codec.model->Names(), ", ")});
    return table.Text(style);
}

std::vector<Json> Fraction(const IVXRational& rate) { return JsonElements(rate.Num(), rate.Den()); }

void AddVideo(IVXJsonValue& json, const IVXCodecs& model)
{
    json.SetValueArray("minSize", JsonElements(model.MinWidth({}), model.MinHeight({})));
    json.SetValueArray("maxSize", JsonElements(model.MaxWidth({}), model.MaxHeight({})));
    json.SetValueArray("sizes", JsonElements(model.SupportedResolutions({}), [](const auto& size)
                                             { return JsonPair(size.first, size.second); }));
    json.SetValueArray("minFrameRate", Fraction(*model.MinFrameRate({})));
    json.SetValueArray("maxFrameRate", Fraction(*model.MaxFrameRate({})));
    json.SetValueArray("frameRates", JsonElements(model.SupportedFrameRates({}), [](const auto& rate)
                                                  { return JsonPair(rate->Num(), rate->Den()); }));
}

void AddAudio(IVXJsonValue& json, const IVXCodecs& model)
{
    json.SetValueArray("sampleRates", JsonElements(model.SupportedSampleRates({}),
                                                   [](int rate) { return JsonElement(rate); }));
    json.SetValueArray("channelLayouts",
                       JsonElements(TextsOf(model.SupportedChannelLayouts({}), LayoutText)));
}

Json CodecJson(const Codec& codec)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt("id", codec.id);
    json->SetValueString("name", codec.model->GetCodecName());
    json->SetValueString("type", codec.Type());
    json->SetValueArray("names", JsonElements(codec.model->Names()));
    if (codec.IsVideo())
        AddVideo(*json, *codec.model);
    else
        AddAudio(*json, *codec.model);
    json->SetValueArray(codec.IsVideo() ? "pixelFormats" : "sampleFormats", JsonElements(FormatNames(codec)));
    json->SetValueArray("profiles", JsonElements(ProfileNames(codec)));
    json->SetValueArray("levels", JsonElements(LevelNames(codec)));
    json->SetValueArray("bitrates", JsonElements(codec.model->SupportedBitrates(),
                                                 [](int bitrate) { return JsonElement(bitrate); }));
    return json;
}

} // namespace

std::string CodecsCommand(const Request& request, const Catalogue&, const Style& style)
{
    auto codecs = AllCodecs();
    if (request.codec)
        codecs = {FindCodec(codecs, *request.codec)};
    if (request.asJson)
        return JsonDocument(JsonElements(codecs, CodecJson));
    return request.codec ? CodecText(codecs.front(), style) : AllText(codecs, style);
}

} // namespace Vexlor::Tool
