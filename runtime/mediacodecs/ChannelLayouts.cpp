#include "ChannelLayouts.h"

#include "Lookup.h"
#include "VXMediaCodecs.h"

#include <array>
#include <bit>

namespace Vexlor
{

namespace
{

constexpr std::array kChannelLayouts{
    ChannelLayoutRow{kMono, "Mono"},
    ChannelLayoutRow{kStereo, "Stereo"},
    ChannelLayoutRow{kLayout21, "2.1"},
    ChannelLayoutRow{kLayout30, "3.0"},
    ChannelLayoutRow{kLayout30Back, "3.0 (back)"},
    ChannelLayoutRow{kLayout31, "3.1"},
    ChannelLayoutRow{kLayout40, "4.0"},
    ChannelLayoutRow{kQuad, "Quad"},
    ChannelLayoutRow{kQuadSide, "Quad"},
    ChannelLayoutRow{kLayout41, "4.1"},
    ChannelLayoutRow{kLayout50, "5.0"},
    ChannelLayoutRow{kLayout50Side, "5.0"},
    ChannelLayoutRow{kLayout51, "5.1"},
    ChannelLayoutRow{kLayout51Side, "5.1"},
    ChannelLayoutRow{kLayout60, "6.0"},
    ChannelLayoutRow{kLayout61, "6.1"},
    ChannelLayoutRow{kLayout61Back, "6.1"},
    ChannelLayoutRow{kLayout70, "7.0"},
    ChannelLayoutRow{kLayout71, "7.1"},
    ChannelLayoutRow{kLayout71Wide, "7.1 (wide)"},
};

} // namespace

std::span<const ChannelLayoutRow> ChannelLayoutTable() { return kChannelLayouts; }

int ChannelsOf(std::uint64_t layout) { return std::popcount(layout); }

std::string VXChannelLayoutName(std::uint64_t layout)
{
    if (const auto* row = FindRow(ChannelLayoutTable(), &ChannelLayoutRow::mask, layout))
        return std::string(row->name);
    const auto channels = ChannelsOf(layout);
    return std::to_string(channels) + (channels == 1 ? " channel" : " channels");
}

} // namespace Vexlor
