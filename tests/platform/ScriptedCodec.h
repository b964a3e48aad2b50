#pragma once

#include "IVXCodecs.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Vexlor
{

/// What a query answers: always the same value, or what a function makes of the query's arguments. Both are
/// assigned as they are: `codec.bestSampleRate = 48000;` or `codec.bestSampleRate = [](int rate) { … };`
template <class Signature>
class Answer;

template <class Result, class... Arguments>
class Answer<Result(Arguments...)>
{
public:
    Answer(Result value) : m_function([value](Arguments...) { return value; }) {}

    template <class Function>
    requires std::is_invocable_r_v<Result, Function, Arguments...> Answer(Function function)
        : m_function(std::move(function))
    {
    }

    Result operator()(Arguments... arguments) const { return m_function(arguments...); }

private:
    std::function<Result(Arguments...)> m_function;
};

/// One codec as a test describes it. Everything that a test leaves alone is empty, so that the codec has no
/// list of its own and fits no entry of a table; the Best... queries echo what they are asked.
struct ScriptedCodec
{
    using Size = std::pair<int, int>;
    using Fraction = std::pair<int, int>;
    using Number = std::pair<int, std::string>;
    using Level = IVXCodecs::QualityLevel;
    using Rate = std::shared_ptr<const IVXRational>;

    /// What GetCodecName answers: "codec 7" for the codec 7.
    std::string name;
    /// What DefaultCodecName answers: "default name of codec 7", so that a test sees which one was asked.
    std::string defaultName;
    int type = VXCodecTypeVideo;
    std::vector<std::string> names{"scripted"};

    int minWidth = 0;
    int maxWidth = 0;
    int minHeight = 0;
    int maxHeight = 0;
    std::vector<Size> resolutions;
    Fraction minFrameRate{0, 1};
    Fraction maxFrameRate{0, 1};
    std::vector<Fraction> frameRates;
    std::vector<int> sampleRates;
    std::vector<std::uint64_t> layouts;
    std::vector<int> formats;
    std::vector<Number> profiles; ///< number and display name
    std::vector<Number> levels;   ///< number and display name
    std::vector<int> bitrates;

    Answer<Size(int width, int height)> bestResolution = [](int width, int height)
    { return Size(width, height); };
    Answer<std::shared_ptr<IVXRational>(const Rate& rate)> bestFrameRate = [](const Rate& rate)
    { return rate ? rate->Clone() : IVXRational::MallocRational(); };
    Answer<int(int rate)> bestSampleRate = [](int rate) { return rate; };
    Answer<std::uint64_t(std::uint64_t layout)> bestLayout = [](std::uint64_t layout) { return layout; };

    Answer<std::pair<int, int>(int width, int height, const Rate& rate, int format)> bitrateRange =
        std::pair(0, 0);
    /// 1000, 2000, 3000 and 4000 for the four grades, as the sound's below.
    Answer<int(int width, int height, const Rate& rate, int format, Level level)> bestPictureBitrate =
        [](int, int, const Rate&, int, Level level) { return 1000 * (level + 1); };
    Answer<int(int rate, std::uint64_t layout, int format, Level level)> bestSoundBitrate =
        [](int, std::uint64_t, int, Level level) { return 1000 * (level + 1); };
    Answer<Level(int bitrate, int width, int height, const Rate& rate, int format)> estPictureQuality =
        IVXCodecs::QualityLevelLow;
    Answer<Level(int bitrate, int rate, std::uint64_t layout, int format)> estSoundQuality =
        IVXCodecs::QualityLevelLow;
};

} // namespace Vexlor
