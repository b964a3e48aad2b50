#pragma once

#include "IVXCodecParameter.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Vexlor
{

/// The parameters of one stream, with a record of the setters that were called on them. A test makes a source
/// by MakeStream, and looks into an output by Scripted.
class ScriptedCodecParameter final : public IVXCodecParameter
{
public:
    explicit ScriptedCodecParameter(int codecID);

    /// The setters called so far, in order, with their arguments: "SetWidth(1280)".
    const std::vector<std::string>& Setters() const { return m_setters; }
    /// All of them, a line each.
    std::string SettersText() const;
    /// Starts the record anew.
    void ForgetSetters() { m_setters.clear(); }
    /// Sets the size as displayed; without it that is the stored frame's.
    void SetDisplaySize(int width, int height) { m_displaySize = std::pair(width, height); }

    int GetCodecID() const override { return m_codecID; }
    int GetCodecType() const override;
    std::shared_ptr<IVXCodecs> GetCodecs(bool encoder) const override;
    std::uint32_t GetCodecTag() const override { return m_codecTag; }
    void SetCodecTag(std::uint32_t tag) override { Set("SetCodecTag", m_codecTag, tag); }
    int GetWidth() const override { return m_width; }
    void SetWidth(int width) override { Set("SetWidth", m_width, width); }
    int GetHeight() const override { return m_height; }
    void SetHeight(int height) override { Set("SetHeight", m_height, height); }
    int GetDisplayWidth() const override { return m_displaySize ? m_displaySize->first : m_width; }
    int GetDisplayHeight() const override { return m_displaySize ? m_displaySize->second : m_height; }
    std::shared_ptr<const IVXRational> GetAspectRatio() const override { return m_aspectRatio; }
    void SetAspectRatio(const std::shared_ptr<const IVXRational>& ratio) override;
    std::shared_ptr<const IVXRational> GetFrameRate() const override { return m_frameRate; }
    void SetFramePerSecond(const std::shared_ptr<const IVXRational>& rate) override;
    int GetFormat() const override { return m_format; }
    void SetFormat(int format) override { Set("SetFormat", m_format, format); }
    int GetProfile() const override { return m_profile; }
    void SetProfile(int profile) override { Set("SetProfile", m_profile, profile); }
    int GetLevel() const override { return m_level; }
    void SetLevel(int level) override { Set("SetLevel", m_level, level); }
    int GetBitrate() const override { return m_bitrate; }
    void SetBitrate(int bitrate) override { Set("SetBitrate", m_bitrate, bitrate); }
    int GetMaxBitrate() const override { return m_maxBitrate; }
    void SetMaxBitrate(int bitrate) override { Set("SetMaxBitrate", m_maxBitrate, bitrate); }
    int GetMinBitrate() const override { return m_minBitrate; }
    void SetMinBitrate(int bitrate) override { Set("SetMinBitrate", m_minBitrate, bitrate); }
    int GetBitrateMode() const override { return m_bitrateMode; }
    void SetBitrateMode(int mode) override { Set("SetBitrateMode", m_bitrateMode, mode); }
    int GetSampleRate() const override { return m_sampleRate; }
    void SetSampleRate(int sampleRate) override { Set("SetSampleRate", m_sampleRate, sampleRate); }
    std::uint64_t GetChannelLayout() const override { return m_channelLayout; }
    void SetChannelLayout(std::uint64_t layout) override { Set("SetChannelLayout", m_channelLayout, layout); }

private:
    template <class Value>
    void Set(const char* setter, Value& member, const Value& value);

    int m_codecID;
    std::optional<std::pair<int, int>> m_displaySize;
    std::vector<std::string> m_setters;
    std::uint32_t m_codecTag = 0;
    int m_width = 0;
    int m_height = 0;
    std::shared_ptr<const IVXRational> m_aspectRatio;
    std::shared_ptr<const IVXRational> m_frameRate;
    int m_format = -1;
    int m_profile = -99;
    int m_level = -99;
    int m_bitrate = 0;
    int m_maxBitrate = 0;
    int m_minBitrate = 0;
    int m_bitrateMode = 0;
    int m_sampleRate = 0;
    std::uint64_t m_channelLayout = 0;
};

/// A stream of that codec, as MallocCodecParamter makes it, but with the scripted operations in sight and
/// without an entry in the platform's record of calls.
std::shared_ptr<ScriptedCodecParameter> MakeStream(int codecID);

/// The scripted record behind a handle of this platform. Throws std::bad_cast for an empty handle.
ScriptedCodecParameter& Scripted(const std::shared_ptr<IVXCodecParameter>& parameter);

} // namespace Vexlor
