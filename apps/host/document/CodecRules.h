#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Vexlor
{
class IVXCodecs;
}

namespace Vexlor::Tool
{

/// What one codec takes, each answer kept: a document asks the same many times.
class CodecRules
{
public:
    /// The rules of a codec; for one that is not known only the name may be asked for, which is empty.
    explicit CodecRules(int codecID);

    bool IsKnown() const { return m_codecs != nullptr; }
    bool IsAudio() const { return m_isAudio; }
    const std::string& Name() const { return m_name; }
    /// Number of pixel or sample formats on offer, Auto among them.
    std::uint32_t Formats() const { return m_formats; }

    // What the codec takes in place of a value, in words; empty when it takes the value itself.

    const std::string& InPlaceOfSize(int width, int height);
    const std::string& InPlaceOfRate(int num, int den);
    const std::string& InPlaceOfSamplerate(int samplerate);
    const std::string& InPlaceOfLayout(std::uint64_t layout);
    const std::string& InPlaceOfProfile(int profile);
    const std::string& InPlaceOfLevel(int level);

private:
    using Answers = std::unordered_map<std::uint64_t, std::string>;

    std::string NearestSize(int width, int height) const;
    std::string NearestRate(int num, int den) const;

    std::shared_ptr<const IVXCodecs> m_codecs;
    bool m_isAudio = false;
    std::string m_name;
    std::uint32_t m_formats = 0;
    Answers m_sizes;
    Answers m_rates;
    Answers m_samplerates;
    Answers m_layouts;
    Answers m_profiles;
    Answers m_levels;
};

} // namespace Vexlor::Tool
