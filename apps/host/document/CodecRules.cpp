#include "CodecRules.h"

#include "apps/host/Text.h"

#include "IVXCodecPreset.h"
#include "IVXCodecs.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr const char* kNoPictures = "none, for the codec has no pictures";
constexpr const char* kNoSound = "none, for the codec has no sound";

std::uint64_t KeyOf(int first, int second)
{
    return std::uint64_t{static_cast<std::uint32_t>(first)} << 32U | static_cast<std::uint32_t>(second);
}

template <typename Answer>
const std::string& Kept(std::unordered_map<std::uint64_t, std::string>& answers, std::uint64_t key,
                        Answer answer)
{
    const auto [kept, isNew] = answers.try_emplace(key);
    if (isNew)
        kept->second = answer();
    return kept->second;
}

/// Nothing where the number is one of them, or the mark for one that is not told.
template <typename Name>
std::string UnlessAmong(const std::vector<int>& numbers, int number, int unknown, Name name)
{
    if (number == unknown || std::ranges::find(numbers, number) != numbers.end())
        return {};
    std::vector<std::string> texts{std::to_string(unknown)};
    for (const int known : numbers)
        texts.push_back(std::to_string(known) + " (" + name(known) + ')');
    return "one of " + Joined(texts, ", ");
}

} // namespace

CodecRules::CodecRules(int codecID) : m_codecs(IVXCodecs::MallocCodecs(codecID, true))
{
    if (!m_codecs)
        return;
    m_isAudio = m_codecs->GetCodecType() == VXCodecTypeAudio;
    m_name = IVXCodecs::DefaultCodecName(codecID, true);
    m_formats = static_cast<std::uint32_t>(IVXCodecPreset::DefaultSampleFmt(codecID).size());
}

const std::string& CodecRules::InPlaceOfSize(int width, int height)
{
    return Kept(m_sizes, KeyOf(width, height), [&] { return NearestSize(width, height); });
}

const std::string& CodecRules::InPlaceOfRate(int num, int den)
{
    return Kept(m_rates, KeyOf(num, den), [&] { return NearestRate(num, den); });
}

const std::string& CodecRules::InPlaceOfSamplerate(int samplerate)
{
    const auto answer = [&]() -> std::string
    {
        if (!m_isAudio)
            return kNoSound;
        if (m_codecs->BestSampleRateForInput(samplerate, {}) == samplerate)
            return {};
        const auto rates = m_codecs->SupportedSampleRates({});
        std::vector<std::string> texts(rates.size());
        std::ranges::transform(rates, texts.begin(), [](int rate) { return std::to_string(rate); });
        return "one of " + Joined(texts, ", ");
    };
    return Kept(m_samplerates, static_cast<std::uint32_t>(samplerate), answer);
}

const std::string& CodecRules::InPlaceOfLayout(std::uint64_t layout)
{
    const auto answer = [&]() -> std::string
    {
        if (!m_isAudio)
            return kNoSound;
        const auto best = m_codecs->BestChannelLayoutForInput(layout, {});
        return best == layout ? ""
                              : "such as " + std::to_string(best) + " (" + VXChannelLayoutName(best) + ')';
    };
    return Kept(m_layouts, layout, answer);
}

const std::string& CodecRules::InPlaceOfProfile(int profile)
{
    return Kept(m_profiles, static_cast<std::uint32_t>(profile),
                [&]
                {
                    return UnlessAmong(m_codecs->SupportedProfiles({}), profile, IVXCodecs::VXProfileUnknown,
                                       [&](int known) { return m_codecs->ProfileName(known); });
                });
}

const std::string& CodecRules::InPlaceOfLevel(int level)
{
    return Kept(m_levels, static_cast<std::uint32_t>(level),
                [&]
                {
                    return UnlessAmong(m_codecs->SupportedLevels({}), level, IVXCodecs::VXLevelUnknown,
                                       [&](int known) { return m_codecs->LevelName(known); });
                });
}

std::string CodecRules::NearestSize(int width, int height) const
{
    if (m_isAudio)
        return kNoPictures;
    const auto best = m_codecs->BestResolutionFor(width, height, {});
    return best == std::pair(width, height)
               ? ""
               : "such as " + std::to_string(best.first) + " x " + std::to_string(best.second);
}

std::string CodecRules::NearestRate(int num, int den) const
{
    if (m_isAudio)
        return kNoPictures;
    const auto best = m_codecs->BestFrameRateForInput(IVXRational::MallocRational(num, den), {});
    const bool isSame = std::int64_t{best->Num()} * den == std::int64_t{best->Den()} * num;
    return isSame ? "" : "such as " + std::to_string(best->Num()) + '/' + std::to_string(best->Den());
}

} // namespace Vexlor::Tool
