#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace Vexlor
{

/// One channel layout with a name; one bit a loudspeaker, as in the headers of WAVE files.
///
/// Layouts that no codec has both of share a name: whether the two rear channels of 5.1 stand beside or
/// behind is the codec's business, and nobody's who chooses.
struct ChannelLayoutRow
{
    std::uint64_t mask;
    std::string_view name;
};

inline constexpr std::uint64_t kFrontLeft = 0x1;
inline constexpr std::uint64_t kFrontRight = 0x2;
inline constexpr std::uint64_t kFrontCenter = 0x4;
inline constexpr std::uint64_t kLowFrequency = 0x8;
inline constexpr std::uint64_t kBackLeft = 0x10;
inline constexpr std::uint64_t kBackRight = 0x20;
inline constexpr std::uint64_t kFrontLeftOfCenter = 0x40;
inline constexpr std::uint64_t kFrontRightOfCenter = 0x80;
inline constexpr std::uint64_t kBackCenter = 0x100;
inline constexpr std::uint64_t kSideLeft = 0x200;
inline constexpr std::uint64_t kSideRight = 0x400;

inline constexpr std::uint64_t kMono = kFrontCenter;
inline constexpr std::uint64_t kStereo = kFrontLeft | kFrontRight;
inline constexpr std::uint64_t kLayout21 = kStereo | kLowFrequency;
inline constexpr std::uint64_t kLayout30 = kStereo | kFrontCenter;
inline constexpr std::uint64_t kLayout30Back = kStereo | kBackCenter;
inline constexpr std::uint64_t kLayout31 = kLayout30 | kLowFrequency;
inline constexpr std::uint64_t kLayout40 = kLayout30 | kBackCenter;
inline constexpr std::uint64_t kLayout41 = kLayout40 | kLowFrequency;
inline constexpr std::uint64_t kQuad = kStereo | kBackLeft | kBackRight;
inline constexpr std::uint64_t kQuadSide = kStereo | kSideLeft | kSideRight;
inline constexpr std::uint64_t kLayout50 = kLayout30 | kBackLeft | kBackRight;
inline constexpr std::uint64_t kLayout50Side = kLayout30 | kSideLeft | kSideRight;
inline constexpr std::uint64_t kLayout51 = kLayout50 | kLowFrequency;
inline constexpr std::uint64_t kLayout51Side = kLayout50Side | kLowFrequency;
inline constexpr std::uint64_t kLayout60 = kLayout50Side | kBackCenter;
inline constexpr std::uint64_t kLayout61 = kLayout51Side | kBackCenter;
inline constexpr std::uint64_t kLayout61Back = kLayout51 | kBackCenter;
inline constexpr std::uint64_t kLayout70 = kLayout50Side | kBackLeft | kBackRight;
inline constexpr std::uint64_t kLayout71 = kLayout51Side | kBackLeft | kBackRight;
inline constexpr std::uint64_t kLayout71Wide = kLayout51 | kFrontLeftOfCenter | kFrontRightOfCenter;

/// Every layout with a name of its own, by its number of channels.
std::span<const ChannelLayoutRow> ChannelLayoutTable();
/// The number of loudspeakers of a mask.
int ChannelsOf(std::uint64_t layout);

} // namespace Vexlor
