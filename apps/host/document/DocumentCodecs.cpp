#include "DocumentCodecs.h"

#include "DocumentFindings.h"
#include "DocumentIndex.h"
#include "apps/host/Text.h"

#include "IVXCodecs.h"
#include "IVXSampleAspectPreset.h"
#include "VXMediaCodecs.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr std::uint32_t kQualities =
    6; // Auto, four grades, Custom; a codec without a number of its own has none
constexpr int kCustom = kQualities - 1;

std::string CodecText(int codecID)
{
    return std::to_string(codecID) + " (" + IVXCodecs::DefaultCodecName(codecID, true) + ')';
}

std::string TakenBy(const ContainerSide& side)
{
    if (side.codecs.empty())
        return "no codec of this kind";
    std::vector<std::string> texts;
    for (const int codecID : side.codecs)
        texts.push_back(CodecText(codecID));
    return "one of " + Joined(texts, ", ");
}

} // namespace

const std::array<DocumentCodecs::List, 6> DocumentCodecs::kLists{
    List{"indexForResolutionPreset", "resolutionPresets", &DocumentCodecs::CheckSize},
    List{"indexForFrameratePresets", "frameratePresets", &DocumentCodecs::CheckRate},
    List{"indexForSampleratePresets", "sampleratePresets", &DocumentCodecs::CheckSamplerate},
    List{"indexForChannelLayoutPresets", "channelLayoutPresets", &DocumentCodecs::CheckLayout},
    List{"indexForProfilesPresets", "profilesPresets", &DocumentCodecs::CheckProfile},
    List{"indexForLevelPresets", "levelPresets", &DocumentCodecs::CheckLevel},
};

void DocumentCodecs::Check(DocumentPosition preset, const ContainerSide& side)
{
    auto& rules = RulesOf(IntegerIn(m_tree, preset, "codecID"));
    CheckCodec(preset, rules, side);
    CheckName(preset, rules);
    CheckIndices(preset, rules);
    CheckAspect(preset);
    if (rules.IsKnown())
        for (const auto& list : kLists)
            m_tree.ForEachIn(preset, list.entries,
                             [&](DocumentPosition entry) { (this->*list.check)(entry, rules); });
}

CodecRules& DocumentCodecs::RulesOf(int codecID)
{
    return m_rules.try_emplace(codecID, codecID).first->second;
}

void DocumentCodecs::CheckCodec(DocumentPosition preset, const CodecRules& rules, const ContainerSide& side)
{
    const auto value = m_tree.Find(preset, "codecID");
    const int codecID = IntegerIn(m_tree, preset, "codecID");
    if (!value || codecID == VXCodecID_None)
        return;
    if (!rules.IsKnown())
        m_findings.Error("codec", *value,
                         [&]
                         {
                             return DocumentWording{"no codec " + std::to_string(codecID),
                                                    "a number that \"vxpresets codecs\" lists"};
                         });
    else if (!side.container.empty() && std::ranges::find(side.codecs, codecID) == side.codecs.end())
        m_findings.Error("codec", *value,
                         [&]
                         {
                             return DocumentWording{OneLine(side.container) + " does not take " +
                                                        CodecText(codecID) + " here",
                                                    TakenBy(side)};
                         });
}

void DocumentCodecs::CheckName(DocumentPosition preset, const CodecRules& rules)
{
    const auto value = m_tree.Find(preset, "name");
    if (!rules.IsKnown() || !value)
        return;
    const auto name = m_tree.FindText(preset, "name").value_or("");
    if (!name.empty() && name != rules.Name())
        m_findings.Warn("name", *value,
                        [&] {
                            return DocumentWording{"nobody reads the name of a codec", Quoted(rules.Name())};
                        });
}

void DocumentCodecs::CheckIndices(DocumentPosition preset, const CodecRules& rules)
{
    for (const auto& list : kLists)
        CheckIndex(m_tree, preset, list.index, m_tree.CountIn(preset, list.entries), m_findings);
    const bool isAuto = IntegerIn(m_tree, preset, "codecID") == VXCodecID_None;
    CheckIndex(m_tree, preset, "indexForQualityPresets", isAuto ? 0 : kQualities, m_findings);
    if (!isAuto && IntegerIn(m_tree, preset, "indexForQualityPresets") == kCustom)
        m_findings.Warn(
            "value", *m_tree.Find(preset, "indexForQualityPresets"),
            [] {
                return DocumentWording{"is Custom, whose bitrate no document holds", "0 to 4, and bounds"};
            });
    if (isAuto || rules.IsKnown())
        CheckIndex(m_tree, preset, "indexForSampleFmts", rules.Formats(), m_findings);
}

void DocumentCodecs::CheckAspect(DocumentPosition preset)
{
    const auto aspect = m_tree.Find(preset, "aspectPreset");
    if (!aspect)
        return;
    const bool isCustom = IntegerIn(m_tree, *aspect, "type") == IVXSampleAspectPreset::AspectCustom;
    const bool isRatio = IntegerIn(m_tree, *aspect, "num") > 0 && IntegerIn(m_tree, *aspect, "den") > 0;
    if (isRatio && !m_tree.Find(*aspect, "type"))
        m_findings.Warn(
            "value", *aspect,
            [] {
                return DocumentWording{"a ratio without a type is square", "type 13 beside num and den"};
            });
    if (isCustom && !isRatio)
        m_findings.Error("value", *aspect,
                         [] {
                             return DocumentWording{"type 13 without a ratio", "num and den above 0"};
                         });
}

void DocumentCodecs::CheckSize(DocumentPosition entry, CodecRules& rules)
{
    const int width = IntegerIn(m_tree, entry, "width");
    const int height = IntegerIn(m_tree, entry, "height");
    const auto text = [&] { return std::to_string(width) + " x " + std::to_string(height); };
    if (width > 0 && height > 0)
        Refuse(entry, rules, rules.InPlaceOfSize(width, height), text);
    else if (width != 0 || height != 0)
        m_findings.Warn("value", entry,
                        [&] {
                            return DocumentWording{text() + " is Auto", "both sides above 0, or both 0"};
                        });
}

void DocumentCodecs::CheckRate(DocumentPosition entry, CodecRules& rules)
{
    const int num = IntegerIn(m_tree, entry, "num");
    const int den = IntegerIn(m_tree, entry, "den");
    if (num != 0 && den != 0)
        Refuse(entry, rules, rules.InPlaceOfRate(num, den),
               [&] { return std::to_string(num) + '/' + std::to_string(den) + " frames per second"; });
    else if (num != 0)
        m_findings.Warn(
            "value", entry,
            [num] {
                return DocumentWording{std::to_string(num) + "/0 is Auto", "num and den above 0, or num 0"};
            });
}

void DocumentCodecs::CheckSamplerate(DocumentPosition entry, CodecRules& rules)
{
    const int samplerate = IntegerIn(m_tree, entry, "samplerate");
    if (samplerate > 0)
        Refuse(entry, rules, rules.InPlaceOfSamplerate(samplerate),
               [&] { return std::to_string(samplerate) + " Hz"; });
    else if (samplerate < 0)
        m_findings.Warn(
            "value", entry,
            [samplerate] {
                return DocumentWording{std::to_string(samplerate) + " Hz is Auto", "a rate above 0, or 0"};
            });
}

void DocumentCodecs::CheckLayout(DocumentPosition entry, CodecRules& rules)
{
    const auto layout = static_cast<std::uint64_t>(m_tree.FindInteger(entry, "chLayout").value_or(0));
    if (layout != 0)
        Refuse(entry, rules, rules.InPlaceOfLayout(layout),
               [&] { return "the channel layout " + std::to_string(layout); });
}

void DocumentCodecs::CheckProfile(DocumentPosition entry, CodecRules& rules)
{
    const int profile = IntegerIn(m_tree, entry, "profile");
    Refuse(entry, rules, rules.InPlaceOfProfile(profile),
           [&] { return "profile " + std::to_string(profile); });
}

void DocumentCodecs::CheckLevel(DocumentPosition entry, CodecRules& rules)
{
    const int level = IntegerIn(m_tree, entry, "level");
    Refuse(entry, rules, rules.InPlaceOfLevel(level), [&] { return "level " + std::to_string(level); });
}

template <typename Text>
void DocumentCodecs::Refuse(DocumentPosition value, const CodecRules& rules, const std::string& inPlace,
                            Text text)
{
    if (!inPlace.empty())
        m_findings.Error("value", value,
                         [&] {
                             return DocumentWording{rules.Name() + " does not take " + text(), inPlace};
                         });
}

} // namespace Vexlor::Tool
