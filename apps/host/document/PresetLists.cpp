#include "PresetLists.h"

#include "CodecRules.h"
#include "apps/host/Failure.h"
#include "apps/host/Quantities.h"
#include "apps/host/Text.h"

#include "IVXChannelLayoutPreset.h"
#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXCodecs.h"
#include "IVXFrameratePreset.h"
#include "IVXLevelPreset.h"
#include "IVXProfilePreset.h"
#include "IVXRational.h"
#include "IVXResolutionPreset.h"
#include "IVXSampleFmtPreset.h"
#include "IVXSampleratePreset.h"
#include "VXMediaCodecs.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr const char* kAuto = "auto";

using Codec = IVXCodecPreset;
using Pair = std::pair<int, int>;

template <typename Value>
std::optional<Value> OrAuto(std::string_view text, std::optional<Value> value, Value automatic)
{
    return Squeezed(text) == kAuto ? std::optional(automatic) : value;
}

/// The number of the name that the codec gives it, or the number itself.
template <typename Name>
std::optional<int> Numbered(std::string_view text, const std::vector<int>& numbers, Name name, int unknown)
{
    const auto wanted = Squeezed(text);
    if (wanted == kAuto || wanted == "unknown")
        return unknown;
    for (const int number : numbers)
        if (Squeezed(name(number)) == wanted)
            return number;
    return IntegerOf(text);
}

std::string NameOr(const std::string& name, int number)
{
    return name.empty() ? std::to_string(number) : name;
}

// Each kind of value: its entries, the value of one, how a text tells it, and what the codec says to it.

struct Resolution
{
    using Value = Pair;
    static auto Entries(Codec& codec) { return codec.ResolutionPresets(); }
    static int Current(const Codec& codec) { return codec.IndexForResolutionPreset(); }
    static void Choose(Codec& codec, int index) { codec.SetIndexForResolutionPreset(index); }
    static void Add(Codec& codec, Value size) { codec.AddResolutionPreset(size.first, size.second); }
    static std::string Text(const IVXResolutionPreset& entry) { return entry.FormatResolution(); }
    static Value ValueOf(const IVXResolutionPreset& entry)
    {
        return entry.IsAutoValue() ? Pair() : Pair(entry.Width(), entry.Height());
    }
    static auto Parse(const Codec&, std::string_view text) { return OrAuto(text, SizeOf(text), Pair()); }
    static std::string InPlaceOf(CodecRules& rules, Value size)
    {
        return size == Pair() ? "" : rules.InPlaceOfSize(size.first, size.second);
    }
};

struct FrameRate
{
    using Value = Pair;
    static auto Entries(Codec& codec) { return codec.FrameratePresets(); }
    static int Current(const Codec& codec) { return codec.IndexForFrameratePresets(); }
    static void Choose(Codec& codec, int index) { codec.SetIndexForFrameratePresets(index); }
    static void Add(Codec& codec, Value rate) { codec.AddFrameratePreset(rate.first, rate.second); }
    static std::string Text(const IVXFrameratePreset& entry) { return entry.FormatFramerate(); }
    static Value ValueOf(const IVXFrameratePreset& entry)
    {
        const auto rate = entry.Framerate();
        return entry.IsAutoValue() ? Pair(0, 1) : Pair(rate->Num(), rate->Den());
    }
    static auto Parse(const Codec&, std::string_view text)
    {
        return OrAuto(text, FrameRateOf(text), Pair(0, 1));
    }
    static std::string InPlaceOf(CodecRules& rules, Value rate)
    {
        return rate.first == 0 ? "" : rules.InPlaceOfRate(rate.first, rate.second);
    }
};

struct SampleRate
{
    using Value = int;
    static auto Entries(Codec& codec) { return codec.SampleratePresets(); }
    static int Current(const Codec& codec) { return codec.IndexForSampleratePresets(); }
    static void Choose(Codec& codec, int index) { codec.SetIndexForSampleratePresets(index); }
    static void Add(Codec& codec, Value rate) { codec.AddSampleratePreset(rate); }
    static std::string Text(const IVXSampleratePreset& entry) { return entry.FormatSamplerate(); }
    static Value ValueOf(const IVXSampleratePreset& entry) { return std::max(0, entry.Samplerate()); }
    static auto Parse(const Codec&, std::string_view text) { return OrAuto(text, SampleRateOf(text), 0); }
    static std::string InPlaceOf(CodecRules& rules, Value rate)
    {
        return rate == 0 ? "" : rules.InPlaceOfSamplerate(rate);
    }
};

struct Channels
{
    using Value = std::uint64_t;
    static auto Entries(Codec& codec) { return codec.ChannelLayoutPresets(); }
    static int Current(const Codec& codec) { return codec.IndexForChannelLayoutPresets(); }
    static void Choose(Codec& codec, int index) { codec.SetIndexForChannelLayoutPresets(index); }
    static void Add(Codec& codec, Value layout) { codec.AddChannelLayoutPreset(layout); }
    static std::string Text(const IVXChannelLayoutPreset& entry) { return entry.FormatLayout(); }
    static Value ValueOf(const IVXChannelLayoutPreset& entry) { return entry.Layout(); }
    static std::optional<Value> Parse(const Codec& codec, std::string_view text)
    {
        const auto codecs = IVXCodecs::MallocCodecs(codec.CodecID(), true);
        for (const auto layout : codecs ? codecs->SupportedChannelLayouts({}) : std::vector<Value>())
            if (Squeezed(VXChannelLayoutName(layout)) == Squeezed(text))
                return layout;
        return OrAuto(text, MaskOf(text), Value{0});
    }
    static std::string InPlaceOf(CodecRules& rules, Value layout)
    {
        return layout == 0 ? "" : rules.InPlaceOfLayout(layout);
    }
};

struct Profile
{
    using Value = int;
    static auto Entries(Codec& codec) { return codec.ProfilePresets(); }
    static int Current(const Codec& codec) { return codec.IndexForProfilesPresets(); }
    static void Choose(Codec& codec, int index) { codec.SetIndexForProfilesPresets(index); }
    static void Add(Codec& codec, Value profile) { codec.AddProfilePreset(profile); }
    static std::string Text(const IVXProfilePreset& entry) { return NameOr(entry.Name(), entry.Profile()); }
    static Value ValueOf(const IVXProfilePreset& entry) { return entry.Profile(); }
    static std::optional<Value> Parse(const Codec& codec, std::string_view text)
    {
        const auto codecs = IVXCodecs::MallocCodecs(codec.CodecID(), true);
        return codecs ? Numbered(
                            text, codecs->SupportedProfiles({}),
                            [&](int profile) { return codecs->ProfileName(profile); },
                            IVXCodecs::VXProfileUnknown)
                      : std::nullopt;
    }
    static std::string InPlaceOf(CodecRules& rules, Value profile) { return rules.InPlaceOfProfile(profile); }
};

struct Level
{
    using Value = int;
    static auto Entries(Codec& codec) { return codec.LevelPresets(); }
    static int Current(const Codec& codec) { return codec.IndexForLevelPresets(); }
    static void Choose(Codec& codec, int index) { codec.SetIndexForLevelPresets(index); }
    static void Add(Codec& codec, Value level) { codec.AddLevelPreset(level); }
    static std::string Text(const IVXLevelPreset& entry) { return NameOr(entry.Name(), entry.Level()); }
    static Value ValueOf(const IVXLevelPreset& entry) { return entry.Level(); }
    static std::optional<Value> Parse(const Codec& codec, std::string_view text)
    {
        const auto codecs = IVXCodecs::MallocCodecs(codec.CodecID(), true);
        return codecs ? Numbered(
                            text, codecs->SupportedLevels({}),
                            [&](int level) { return codecs->LevelName(level); }, IVXCodecs::VXLevelUnknown)
                      : std::nullopt;
    }
    static std::string InPlaceOf(CodecRules& rules, Value level) { return rules.InPlaceOfLevel(level); }
};

/// A list that takes further values.
template <typename Kind>
class OpenList final : public PresetList
{
public:
    explicit OpenList(Codec& codec) : m_codec(codec) {}

    std::vector<std::string> Texts() const override
    {
        std::vector<std::string> texts;
        for (const auto& entry : Kind::Entries(m_codec))
            texts.push_back(Kind::Text(*entry));
        return texts;
    }
    int Current() const override { return Kind::Current(m_codec); }
    void Choose(int index) override { Kind::Choose(m_codec, index); }
    std::optional<int> FindValue(std::string_view text) override
    {
        const auto value = Kind::Parse(m_codec, text);
        if (!value)
            return {};
        const auto entries = Kind::Entries(m_codec);
        const auto found =
            std::ranges::find_if(entries, [&](const auto& entry) { return Kind::ValueOf(*entry) == *value; });
        if (found == entries.end())
            AddTaken(*value, text);
        return static_cast<int>(found - entries.begin());
    }

private:
    void AddTaken(typename Kind::Value value, std::string_view text)
    {
        CodecRules rules(m_codec.CodecID());
        const auto inPlace = rules.IsKnown() ? Kind::InPlaceOf(rules, value) : std::string();
        if (!inPlace.empty())
            throw Failure(rules.Name() + " does not take " + Quoted(text) + "; expected " + inPlace);
        Kind::Add(m_codec, value);
    }

    Codec& m_codec;
};

/// The grades of quality. The last entry, a bitrate of one's own, has no place in a document.
class Qualities final : public PresetList
{
public:
    explicit Qualities(Codec& codec) : m_codec(codec) {}

    std::vector<std::string> Texts() const override
    {
        std::vector<std::string> texts;
        for (const auto& entry : m_codec.CodecQualityPresets())
            if (!entry->IsCustom())
                texts.push_back(entry->FormatQuality());
        return texts;
    }
    int Current() const override { return m_codec.IndexForQualityPresets(); }
    void Choose(int index) override { m_codec.SetIndexForQualityPresets(index); }
    std::optional<int> FindValue(std::string_view) override { return {}; }

private:
    Codec& m_codec;
};

/// The pixel or sample formats, which are the codec's own.
class Formats final : public PresetList
{
public:
    explicit Formats(Codec& codec) : m_codec(codec) {}

    std::vector<std::string> Texts() const override
    {
        std::vector<std::string> texts;
        for (const auto& entry : std::as_const(m_codec).SampleFmtPresets())
            texts.push_back(entry->FormatSampleFmt());
        return texts;
    }
    int Current() const override { return m_codec.IndexForSampleFmts(); }
    void Choose(int index) override { m_codec.SetIndexForSampleFmts(index); }
    std::optional<int> FindValue(std::string_view) override { return {}; }

private:
    Codec& m_codec;
};

} // namespace

std::unique_ptr<PresetList> PresetListOf(PresetListKind kind, IVXCodecPreset& codec)
{
    switch (kind)
    {
    case PresetListKind::Resolution:
        return std::make_unique<OpenList<Resolution>>(codec);
    case PresetListKind::FrameRate:
        return std::make_unique<OpenList<FrameRate>>(codec);
    case PresetListKind::SampleRate:
        return std::make_unique<OpenList<SampleRate>>(codec);
    case PresetListKind::Channels:
        return std::make_unique<OpenList<Channels>>(codec);
    case PresetListKind::Profile:
        return std::make_unique<OpenList<Profile>>(codec);
    case PresetListKind::Level:
        return std::make_unique<OpenList<Level>>(codec);
    case PresetListKind::Quality:
        return std::make_unique<Qualities>(codec);
    case PresetListKind::Format:
        break;
    }
    return std::make_unique<Formats>(codec);
}

std::string ChooseEntry(PresetList& list, std::string_view text, bool& isAdded)
{
    const auto texts = list.Texts();
    const auto shown = std::ranges::find(texts, Squeezed(text), Squeezed);
    const auto count = static_cast<int>(texts.size());
    const auto index = shown != texts.end() ? static_cast<int>(shown - texts.begin()) : list.FindValue(text);
    if (!index)
        throw Failure(Quoted(text) + " is none of " + Joined(texts, ", "));
    isAdded = *index == count;
    list.Choose(*index);
    return list.Texts()[static_cast<std::size_t>(*index)];
}

} // namespace Vexlor::Tool
