#include "Snapping.h"

#include "ChannelLayouts.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace Vexlor
{

namespace
{

constexpr PictureSize kUsualSize{1280, 720};
constexpr AVRational kUsualRate{30, 1};

double Area(PictureSize size) { return double(size.width) * size.height; }
double Shape(PictureSize size) { return double(size.width) / size.height; }

// Twice as large and twice as wide count alike.
double Distance(PictureSize one, PictureSize other)
{
    return std::abs(std::log(Area(one) / Area(other))) + std::abs(std::log(Shape(one) / Shape(other)));
}

PictureSize NearestSize(PictureSize wanted, std::span<const PictureSize> sizes)
{
    return *std::ranges::min_element(sizes, {}, [&](PictureSize size) { return Distance(size, wanted); });
}

bool Fits(PictureSize size, const VideoLimits& limits)
{
    return size.width >= limits.min.width && size.height >= limits.min.height &&
           size.width <= limits.max.width && size.height <= limits.max.height &&
           (limits.maxArea == 0 || Area(size) <= double(limits.maxArea));
}

int MultipleBelow(int side, int block) { return side / block * block; }

PictureSize MultiplesBelow(PictureSize size, ChromaBlock block)
{
    return {MultipleBelow(size.width, block.width), MultipleBelow(size.height, block.height)};
}

PictureSize MultiplesNear(PictureSize size, ChromaBlock block)
{
    return MultiplesBelow({size.width + block.width / 2, size.height + block.height / 2}, block);
}

// How much larger (above 1) or smaller the picture must be. A picture can be too narrow and too high at once;
// then growing goes first and the clamp that follows bends the shape, since no legal size has it.
double ScaleInto(PictureSize size, const VideoLimits& limits)
{
    const double grow =
        std::max(double(limits.min.width) / size.width, double(limits.min.height) / size.height);
    if (grow > 1)
        return grow;
    const double area = limits.maxArea == 0 ? 1.0 : std::sqrt(double(limits.maxArea) / Area(size));
    return std::min(
        {1.0, double(limits.max.width) / size.width, double(limits.max.height) / size.height, area});
}

int ScaledSide(int side, double scale, int least, int most, int block)
{
    // The small amount keeps 0.999… of a side from losing a whole block to the division before.
    const double scaled = std::clamp(side * scale + 1e-6, double(least), double(most));
    const int multiple = MultipleBelow(static_cast<int>(scaled), block);
    return multiple < least ? multiple + block : multiple;
}

PictureSize ScaledInto(PictureSize size, const VideoLimits& limits, ChromaBlock block)
{
    const double scale = ScaleInto(size, limits);
    return {ScaledSide(size.width, scale, limits.min.width, limits.max.width, block.width),
            ScaledSide(size.height, scale, limits.min.height, limits.max.height, block.height)};
}

bool IsRate(AVRational rate) { return rate.den != 0 && rate.num != 0 && (rate.num > 0) == (rate.den > 0); }

// The same value in positive terms that the codec can write; exact wherever it can be.
AVRational InTerms(AVRational rate, int maxTerm)
{
    const auto limit = maxTerm > 0 ? maxTerm : std::numeric_limits<int>::max();
    if (rate.num > 0 && rate.num <= limit && rate.den <= limit)
        return rate;
    AVRational reduced{};
    av_reduce(&reduced.num, &reduced.den, std::abs(std::int64_t{rate.num}), std::abs(std::int64_t{rate.den}),
              limit);
    return reduced;
}

AVRational NearestRate(AVRational wanted, std::span<const AVRational> rates)
{
    const double value = av_q2d(wanted);
    AVRational best = rates.front();
    for (const auto rate : rates)
    {
        const double gain = std::abs(av_q2d(best) - value) - std::abs(av_q2d(rate) - value);
        if (gain > 0 || (gain == 0 && av_q2d(rate) > av_q2d(best)))
            best = rate;
    }
    return best;
}

int FewerThan(int channels, std::span<const std::uint64_t> layouts)
{
    int most = 0;
    for (const auto layout : layouts)
        if (ChannelsOf(layout) < channels)
            most = std::max(most, ChannelsOf(layout));
    return most;
}

} // namespace

PictureSize SnapSize(PictureSize wanted, const VideoLimits& limits, ChromaBlock block)
{
    const auto size = wanted.width > 0 && wanted.height > 0 ? wanted : kUsualSize;
    if (!limits.sizes.empty())
        return NearestSize(size, limits.sizes);
    if (!Fits(size, limits))
        return ScaledInto(size, limits, block);
    const auto near = MultiplesNear(size, block);
    return Fits(near, limits) ? near : ScaledInto(size, limits, block);
}

AVRational SnapFrameRate(AVRational wanted, const VideoLimits& limits)
{
    const auto rate = IsRate(wanted) ? wanted : kUsualRate;
    if (!limits.rates.empty())
        return NearestRate(rate, limits.rates);
    if (av_q2d(rate) < av_q2d(limits.minRate))
        return limits.minRate;
    if (av_q2d(rate) > av_q2d(limits.maxRate))
        return limits.maxRate;
    return InTerms(rate, limits.maxRateTerm);
}

int SnapSampleRate(int wanted, std::span<const int> rates)
{
    if (rates.empty())
        return 0;
    int best = rates.front();
    if (wanted < 1)
        return best;
    const auto distance = [wanted](int rate) { return std::abs(std::int64_t{rate} - wanted); };
    for (const int rate : rates)
        if (distance(rate) < distance(best) || (distance(rate) == distance(best) && rate > best))
            best = rate;
    return best;
}

std::uint64_t SnapLayout(std::uint64_t wanted, std::span<const std::uint64_t> layouts)
{
    if (layouts.empty())
        return 0;
    if (wanted == 0)
        return layouts.front();
    if (std::ranges::find(layouts, wanted) != layouts.end())
        return wanted;
    const auto same = std::ranges::find(layouts, ChannelsOf(wanted), ChannelsOf);
    if (same != layouts.end())
        return *same;
    const auto fewer = FewerThan(ChannelsOf(wanted), layouts);
    if (fewer > 0)
        return *std::ranges::find(layouts, fewer, ChannelsOf);
    return *std::ranges::min_element(layouts, {}, ChannelsOf);
}

} // namespace Vexlor
