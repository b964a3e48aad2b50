#include "SampleFormats.h"

#include "Lookup.h"
#include "VXMediaCodecs.h"

#include <array>

namespace Vexlor
{

namespace
{

constexpr std::array kSampleFormats{
    SampleFormatRow{kSampleFormatU8, AV_SAMPLE_FMT_U8, "8-bit"},
    SampleFormatRow{kSampleFormatS16, AV_SAMPLE_FMT_S16, "16-bit"},
    SampleFormatRow{kSampleFormatS32, AV_SAMPLE_FMT_S32, "32-bit"},
    SampleFormatRow{VXSampleFormat_FLT, AV_SAMPLE_FMT_FLT, "32-bit float"},
    SampleFormatRow{kSampleFormatDBL, AV_SAMPLE_FMT_DBL, "64-bit float"},
    SampleFormatRow{kSampleFormatS64, AV_SAMPLE_FMT_S64, "64-bit"},
    SampleFormatRow{kSampleFormatU8P, AV_SAMPLE_FMT_U8P, "8-bit planar"},
    SampleFormatRow{kSampleFormatS16P, AV_SAMPLE_FMT_S16P, "16-bit planar"},
    SampleFormatRow{kSampleFormatS32P, AV_SAMPLE_FMT_S32P, "32-bit planar"},
    SampleFormatRow{kSampleFormatFLTP, AV_SAMPLE_FMT_FLTP, "32-bit float planar"},
    SampleFormatRow{kSampleFormatDBLP, AV_SAMPLE_FMT_DBLP, "64-bit float planar"},
    SampleFormatRow{kSampleFormatS64P, AV_SAMPLE_FMT_S64P, "64-bit planar"},
    SampleFormatRow{kSampleFormatS24, AV_SAMPLE_FMT_S32, "24-bit", 24},
    SampleFormatRow{kSampleFormatS24P, AV_SAMPLE_FMT_S32P, "24-bit planar", 24},
};

} // namespace

std::span<const SampleFormatRow> SampleFormatTable() { return kSampleFormats; }

int SampleFormatOf(AVSampleFormat avFormat, int bits)
{
    const SampleFormatRow* found = nullptr;
    for (const auto& row : kSampleFormats)
        if (row.avFormat == avFormat && (!found || row.bits == bits))
            found = &row;
    return found ? found->format : VXSampleFormat_None;
}

AVSampleFormat AVSampleFormatOf(int format)
{
    const auto* row = FindRow(SampleFormatTable(), &SampleFormatRow::format, format);
    return row ? row->avFormat : AV_SAMPLE_FMT_NONE;
}

int SampleBitsOf(int format)
{
    const auto* row = FindRow(SampleFormatTable(), &SampleFormatRow::format, format);
    if (row && row->bits > 0)
        return row->bits;
    const auto bytes = av_get_bytes_per_sample(AVSampleFormatOf(format));
    return bytes > 0 ? bytes * 8 : 16;
}

std::string SampleFormatName(int format)
{
    const auto* row = FindRow(SampleFormatTable(), &SampleFormatRow::format, format);
    return row ? std::string(row->name) : std::string();
}

} // namespace Vexlor
