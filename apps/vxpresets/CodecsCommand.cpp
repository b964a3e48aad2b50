#include "Commands.h"

#include "CodecFacts.h"
#include "CodecsMarkdown.h"
#include "ListText.h"
#include "Table.h"
#include "apps/host/Json.h"
#include "apps/host/NameSearch.h"
#include "apps/host/Text.h"

#include "IVXCodecs.h"
#include "IVXRational.h"

namespace Vexlor::Tool
{

namespace
{

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

std::string AllText(const std::vector<Codec>& codecs, const Style& style)
{
    Table table({"No.", "Codec", "Type", "Accepts", "Encoders"});
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

void AddAudio(IVXJsonValue& json, const Codec& codec)
{
    json.SetValueArray("sampleRates", JsonElements(codec.model->SupportedSampleRates({}),
                                                   [](int rate) { return JsonElement(rate); }));
    json.SetValueArray("channelLayouts", JsonElements(LayoutNames(codec)));
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
        AddAudio(*json, codec);
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
    if (request.asMarkdown)
        return CodecsMarkdown(codecs);
    if (request.codec)
        codecs = {FindCodec(codecs, *request.codec)};
    if (request.asJson)
        return JsonDocument(JsonElements(codecs, CodecJson));
    return request.codec ? CodecText(codecs.front(), style) : AllText(codecs, style);
}

} // namespace Vexlor::Tool
