#include "IVXCodecs.h"

#include "tests/platform/ScriptedCall.h"
#include "tests/platform/ScriptedPlatform.h"

#include <algorithm>
#include <string_view>

namespace Vexlor
{

namespace
{

using Rate = std::shared_ptr<const IVXRational>;

class VXCodecs final : public IVXCodecs
{
public:
    explicit VXCodecs(std::shared_ptr<const ScriptedCodec> codec) : m_codec(std::move(codec)) {}

    std::string GetCodecName() const override { return Called(m_codec->name, "GetCodecName"); }
    int GetCodecType() const override { return Called(m_codec->type, "GetCodecType"); }
    std::vector<std::string> Names() const override { return Called(m_codec->names, "Names"); }

    int MinWidth(const std::string& option) const override
    {
        return Called(m_codec->minWidth, "MinWidth", option);
    }
    int MaxWidth(const std::string& option) const override
    {
        return Called(m_codec->maxWidth, "MaxWidth", option);
    }
    int MinHeight(const std::string& option) const override
    {
        return Called(m_codec->minHeight, "MinHeight", option);
    }
    int MaxHeight(const std::string& option) const override
    {
        return Called(m_codec->maxHeight, "MaxHeight", option);
    }
    std::vector<std::pair<int, int>> SupportedResolutions(const std::string& option) const override
    {
        return Called(m_codec->resolutions, "SupportedResolutions", option);
    }

    std::shared_ptr<IVXRational> MinFrameRate(const std::string& option) const override
    {
        return Made(Called(m_codec->minFrameRate, "MinFrameRate", option));
    }
    std::shared_ptr<IVXRational> MaxFrameRate(const std::string& option) const override
    {
        return Made(Called(m_codec->maxFrameRate, "MaxFrameRate", option));
    }
    std::vector<std::shared_ptr<IVXRational>> SupportedFrameRates(const std::string& option) const override
    {
        std::vector<std::shared_ptr<IVXRational>> rates;
        for (const auto& rate : Called(m_codec->frameRates, "SupportedFrameRates", option))
            rates.push_back(Made(rate));
        return rates;
    }

    std::vector<int> SupportedSampleRates(const std::string& option) const override
    {
        return Called(m_codec->sampleRates, "SupportedSampleRates", option);
    }
    std::vector<std::uint64_t> SupportedChannelLayouts(const std::string& option) const override
    {
        return Called(m_codec->layouts, "SupportedChannelLayouts", option);
    }
    std::vector<int> SupportedFormats(const std::string& option) const override
    {
        return Called(m_codec->formats, "SupportedFormats", option);
    }
    std::vector<int> SupportedProfiles(const std::string& option) const override
    {
        return NumbersOf(Called(m_codec->profiles, "SupportedProfiles", option));
    }
    std::vector<int> SupportedLevels(const std::string& option) const override
    {
        return NumbersOf(Called(m_codec->levels, "SupportedLevels", option));
    }

    std::pair<int, int> BestResolutionFor(int width, int height, const std::string& option) const override
    {
        return Called(m_codec->bestResolution(width, height), "BestResolutionFor", width, height, option);
    }
    std::shared_ptr<IVXRational> BestFrameRateForInput(const Rate& rate,
                                                       const std::string& option) const override
    {
        return Called(m_codec->bestFrameRate(rate), "BestFrameRateForInput", rate, option);
    }
    int BestSampleRateForInput(int sampleRate, const std::string& option) const override
    {
        return Called(m_codec->bestSampleRate(sampleRate), "BestSampleRateForInput", sampleRate, option);
    }
    std::uint64_t BestChannelLayoutForInput(std::uint64_t layout, const std::string& option) const override
    {
        return Called(m_codec->bestLayout(layout), "BestChannelLayoutForInput", layout, option);
    }

    std::pair<int, int> BitrateRangeFor(int width, int height, const Rate& rate, int format,
                                        const std::string& option) const override
    {
        return Called(m_codec->bitrateRange(width, height, rate, format), "BitrateRangeFor", width, height,
                      rate, format, option);
    }
    int BestBitrateFor(int width, int height, const Rate& rate, int format, QualityLevel level,
                       const std::string& option) const override
    {
        return Called(m_codec->bestPictureBitrate(width, height, rate, format, level), "BestBitrateFor",
                      width, height, rate, format, level, option);
    }
    int BestBitrateFor(int sampleRate, std::uint64_t layout, int format, QualityLevel level,
                       const std::string& option) const override
    {
        return Called(m_codec->bestSoundBitrate(sampleRate, layout, format, level), "BestBitrateFor",
                      sampleRate, layout, format, level, option);
    }
    QualityLevel EstQualityWithBitrate(int bitrate, int width, int height, const Rate& rate, int format,
                                       const std::string& option) const override
    {
        return Called(m_codec->estPictureQuality(bitrate, width, height, rate, format),
                      "EstQualityWithBitrate", bitrate, width, height, rate, format, option);
    }
    QualityLevel EstQualityWithBitrate(int bitrate, int sampleRate, std::uint64_t layout, int format,
                                       const std::string& option) const override
    {
        return Called(m_codec->estSoundQuality(bitrate, sampleRate, layout, format), "EstQualityWithBitrate",
                      bitrate, sampleRate, layout, format, option);
    }

    std::string ProfileName(int profile) const override
    {
        return Called(NameOf(profile, m_codec->profiles), "ProfileName", profile);
    }
    std::string LevelName(int level) const override
    {
        return Called(NameOf(level, m_codec->levels), "LevelName", level);
    }
    std::vector<int> SupportedBitrates() const override
    {
        return Called(m_codec->bitrates, "SupportedBitrates");
    }

private:
    template <class Result, class... Arguments>
    static Result Called(Result answer, std::string_view operation, const Arguments&... arguments)
    {
        ScriptedPlatform::Record(CallText(operation, arguments...));
        return answer;
    }

    static std::shared_ptr<IVXRational> Made(const ScriptedCodec::Fraction& rate)
    {
        return IVXRational::MallocRational(rate.first, rate.second);
    }

    static std::vector<int> NumbersOf(const std::vector<ScriptedCodec::Number>& named)
    {
        std::vector<int> numbers;
        numbers.reserve(named.size());
        for (const auto& [number, name] : named)
            numbers.push_back(number);
        return numbers;
    }

    static std::string NameOf(int number, const std::vector<ScriptedCodec::Number>& named)
    {
        const auto known = std::ranges::find(named, number, &ScriptedCodec::Number::first);
        return known != named.end() ? known->second : std::string();
    }

    std::shared_ptr<const ScriptedCodec> m_codec;
};

std::shared_ptr<const ScriptedCodec> FindCodec(int codecID)
{
    const auto* platform = ScriptedPlatform::Current();
    return platform ? platform->FindCodec(codecID) : nullptr;
}

} // namespace

std::shared_ptr<IVXCodecs> IVXCodecs::MallocCodecs(int codecID, bool encoder)
{
    ScriptedPlatform::Record(CallText("MallocCodecs", codecID, encoder));
    const auto codec = FindCodec(codecID);
    return codec ? std::make_shared<VXCodecs>(codec) : nullptr;
}

std::string IVXCodecs::DefaultCodecName(int codecID, bool encoder)
{
    ScriptedPlatform::Record(CallText("DefaultCodecName", codecID, encoder));
    const auto codec = FindCodec(codecID);
    return codec ? codec->defaultName : std::string();
}

std::string IVXCodecs::QualityLevelName(QualityLevel level) { return "grade " + std::to_string(level); }

} // namespace Vexlor
