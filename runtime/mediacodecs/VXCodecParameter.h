#pragma once

#include "CodecTable.h"
#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

namespace Vexlor
{

/// The parameters of one stream. The display size is the frame's, widened by the sample aspect ratio, until a
/// reader that knows better (a rotated clip) sets it.
class VXCodecParameter final : public IVXCodecParameter
{
public:
    explicit VXCodecParameter(int codecID) : m_codecID(codecID) {}

    /// Sets the size that GetDisplayWidth and GetDisplayHeight answer; 0 x 0 has them computed again.
    void SetDisplaySize(int width, int height) { m_display = {width, height}; }

    int GetCodecID() const override { return m_codecID; }
    int GetCodecType() const override;
    std::shared_ptr<IVXCodecs> GetCodecs(bool encoder) const override;
    std::uint32_t GetCodecTag() const override { return m_tag; }
    void SetCodecTag(std::uint32_t tag) override { m_tag = tag; }

    int GetWidth() const override { return m_size.width; }
    void SetWidth(int width) override { m_size.width = width; }
    int GetHeight() const override { return m_size.height; }
    void SetHeight(int height) override { m_size.height = height; }
    int GetDisplayWidth() const override;
    int GetDisplayHeight() const override;
    std::shared_ptr<const IVXRational> GetAspectRatio() const override { return m_aspect; }
    void SetAspectRatio(const std::shared_ptr<const IVXRational>& ratio) override;
    std::shared_ptr<const IVXRational> GetFrameRate() const override { return m_frameRate; }
    void SetFramePerSecond(const std::shared_ptr<const IVXRational>& rate) override;

    int GetFormat() const override { return m_format; }
    void SetFormat(int format) override { m_format = format; }
    int GetProfile() const override { return m_profile; }
    void SetProfile(int profile) override { m_profile = profile; }
    int GetLevel() const override { return m_level; }
    void SetLevel(int level) override { m_level = level; }

    int GetBitrate() const override { return m_bitrate; }
    void SetBitrate(int bitrate) override { m_bitrate = bitrate; }
    int GetMaxBitrate() const override { return m_maxBitrate; }
    void SetMaxBitrate(int bitrate) override { m_maxBitrate = bitrate; }
    int GetMinBitrate() const override { return m_minBitrate; }
    void SetMinBitrate(int bitrate) override { m_minBitrate = bitrate; }
    int GetBitrateMode() const override { return m_bitrateMode; }
    void SetBitrateMode(int mode) override { m_bitrateMode = mode; }

    int GetSampleRate() const override { return m_sampleRate; }
    void SetSampleRate(int sampleRate) override { m_sampleRate = sampleRate; }
    std::uint64_t GetChannelLayout() const override { return m_channelLayout; }
    void SetChannelLayout(std::uint64_t layout) override { m_channelLayout = layout; }

private:
    int m_codecID;
    std::uint32_t m_tag = 0;
    PictureSize m_size;
    PictureSize m_display;
    std::shared_ptr<const IVXRational> m_aspect = IVXRational::MallocRational(1, 1);
    std::shared_ptr<const IVXRational> m_frameRate = IVXRational::MallocRational(0, 1);
    int m_format = VXPixFormat_None; // VXSampleFormat_None is the same number
    int m_profile = IVXCodecs::VXProfileUnknown;
    int m_level = IVXCodecs::VXLevelUnknown;
    int m_bitrate = 0;
    int m_maxBitrate = 0;
    int m_minBitrate = 0;
    int m_bitrateMode = 0;
    int m_sampleRate = 0;
    std::uint64_t m_channelLayout = 0;
};

} // namespace Vexlor
