#include "DocumentMeaning.h"

#include "DocumentCodecs.h"
#include "DocumentFindings.h"
#include "DocumentIndex.h"
#include "apps/host/NameSearch.h"
#include "apps/host/Text.h"

#include "IVXFormat.h"
#include "VXMediaCodecs.h"

#include <array>
#include <map>
#include <unordered_map>

namespace Vexlor::Tool
{

namespace
{

/// A container as format presets name it.
struct Container
{
    ContainerSide video;
    ContainerSide audio;
};

/// Every container that can be written here.
std::map<std::string, Container> Containers()
{
    std::map<std::string, Container> containers;
    for (const auto& name : VXMediaCodecSupportOutputAllMediaFormats())
    {
        const auto format = IVXFormat::MallocFormat(name, {});
        containers[name] = {{name, format->VideoCodecIDs()}, {name, format->AudioCodecIDs()}};
    }
    return containers;
}

/// Two members of which the one bounds from below what the other bounds from above.
struct BoundPair
{
    std::string_view least;
    std::string_view most;
};

constexpr std::array kSizes{BoundPair{"minWidth", "maxWidth"}, BoundPair{"minHeight", "maxHeight"}};
constexpr std::array kBitrates{BoundPair{"minVideoBitrate", "maxVideoBitrate"},
                               BoundPair{"minAudioBitrate", "maxAudioBitrate"}};

class MeaningCheck
{
public:
    MeaningCheck(const DocumentTree& tree, const std::set<int>& faces, DocumentFindings& findings)
        : m_tree(tree), m_faces(faces), m_findings(findings), m_codecs(tree, findings)
    {
    }

    int Presets() const { return m_presets; }
    void CheckNode(DocumentPosition node);

private:
    void CheckPreset(DocumentPosition preset);
    const Container& CheckContainer(DocumentPosition preset);
    void CheckSide(DocumentPosition preset, std::string_view index, std::string_view list,
                   const ContainerSide& side);
    void CheckFace(DocumentPosition object);
    void CheckSizes(DocumentPosition preset);
    void CheckBitrate(DocumentPosition preset, std::string_view bound);
    void CheckOrder(DocumentPosition preset, const BoundPair& pair, int gap);
    void CheckNames(DocumentPosition node, std::string_view list);

    const DocumentTree& m_tree;
    const std::set<int>& m_faces;
    DocumentFindings& m_findings;
    DocumentCodecs m_codecs;
    const std::map<std::string, Container> m_containers = Containers();
    const Container m_unknown;
    int m_presets = 0;
};

// As deep as the document is nested, which the parser bounds.
void MeaningCheck::CheckNode(DocumentPosition node)
{
    CheckFace(node);
    CheckNames(node, "formatPresetList");
    CheckNames(node, "childList");
    m_tree.ForEachIn(node, "formatPresetList", [this](DocumentPosition preset) { CheckPreset(preset); });
    m_tree.ForEachIn(node, "childList", [this](DocumentPosition child) { CheckNode(child); });
}

void MeaningCheck::CheckPreset(DocumentPosition preset)
{
    ++m_presets;
    if (m_tree[preset].kind != DocumentKind::Object)
        return;
    const auto& container = CheckContainer(preset);
    CheckFace(preset);
    CheckSide(preset, "indexForVideoCodecPresets", "videoCodecPresets", container.video);
    CheckSide(preset, "indexForAudioCodecPresets", "audioCodecPresets", container.audio);
    CheckSizes(preset);
    for (const auto& pair : kBitrates)
    {
        CheckBitrate(preset, pair.least);
        CheckBitrate(preset, pair.most);
        CheckOrder(preset, pair, 1);
    }
}

const Container& MeaningCheck::CheckContainer(DocumentPosition preset)
{
    const auto value = m_tree.Find(preset, "formatName");
    auto name = m_tree.FindText(preset, "formatName").value_or("");
    if (name == "MPEG1" || name == "MPEG2")
        name = VXFormatNameMPG;
    const auto known = m_containers.find(name);
    if (known != m_containers.end())
        return known->second;
    const auto word = [&]
    {
        const auto names = VXMediaCodecSupportOutputAllMediaFormats();
        const auto nearest = NearestName(names, name);
        const auto what =
            value ? "no container " + Quoted(name) + " can be written here" : "formatName is absent";
        return DocumentWording{what, nearest.empty() ? "one of " + Joined(names, ", ") : Quoted(nearest)};
    };
    m_findings.Error("container", value.value_or(preset), word);
    return m_unknown;
}

void MeaningCheck::CheckSide(DocumentPosition preset, std::string_view index, std::string_view list,
                             const ContainerSide& side)
{
    CheckIndex(m_tree, preset, index, m_tree.CountIn(preset, list), m_findings);
    m_tree.ForEachIn(preset, list, [&](DocumentPosition codec) { m_codecs.Check(codec, side); });
}

void MeaningCheck::CheckFace(DocumentPosition object)
{
    const int face = IntegerIn(m_tree, object, "faceID");
    if (face != 0 && !m_faces.contains(face))
        m_findings.Warn(
            "face", *m_tree.Find(object, "faceID"),
            [&] { return DocumentWording{"no icon " + std::to_string(face) + " in the artwork file"}; });
}

// One side alone bounds nothing, and neither do the least ones without both largest ones.
void MeaningCheck::CheckSizes(DocumentPosition preset)
{
    const bool isBounded =
        IntegerIn(m_tree, preset, "maxWidth") > 0 && IntegerIn(m_tree, preset, "maxHeight") > 0;
    for (const auto& pair : kSizes)
    {
        if (isBounded)
            CheckOrder(preset, pair, 0);
        for (const auto name : {pair.least, pair.most})
            if (!isBounded && IntegerIn(m_tree, preset, name) > 0)
                m_findings.Warn(
                    "bounds", *m_tree.Find(preset, name),
                    [] {
                        return DocumentWording{"bounds nothing", "maxWidth and maxHeight above 0"};
                    });
    }
}

void MeaningCheck::CheckBitrate(DocumentPosition preset, std::string_view bound)
{
    const auto value = m_tree.Find(preset, bound);
    if (value && m_tree.FindInteger(preset, bound) == 0)
        m_findings.Error("bounds", *value,
                         [] {
                             return DocumentWording{"0 is a bound", "-1 for none, or above 0"};
                         });
}

void MeaningCheck::CheckOrder(DocumentPosition preset, const BoundPair& pair, int gap)
{
    const int least = IntegerIn(m_tree, preset, pair.least);
    const int most = IntegerIn(m_tree, preset, pair.most);
    const auto word = [&]
    {
        return DocumentWording{"is " + std::to_string(least) + ", and " + std::string(pair.most) + " is " +
                                   std::to_string(most),
                               "at most " + std::to_string(most - gap)};
    };
    if (least > 0 && most > 0 && least > most - gap)
        m_findings.Error("bounds", *m_tree.Find(preset, pair.least), word);
}

void MeaningCheck::CheckNames(DocumentPosition node, std::string_view list)
{
    std::unordered_map<std::string, DocumentPosition> first;
    const auto check = [&](DocumentPosition element)
    {
        const auto name = m_tree.FindText(element, "name").value_or("");
        if (name.empty())
            return;
        const auto same = first.try_emplace(name, element).first->second;
        const auto word = [&]
        {
            return DocumentWording{"has the name of number " + std::to_string(m_tree[same].ordinal) + ", too",
                                   "a name of its own"};
        };
        if (same != element)
            m_findings.Warn("name", *m_tree.Find(element, "name"), word);
    };
    m_tree.ForEachIn(node, list, check);
}

} // namespace

int CheckMeaning(const DocumentTree& tree, const std::set<int>& faces, DocumentFindings& findings)
{
    MeaningCheck check(tree, faces, findings);
    check.CheckNode(0);
    return check.Presets();
}

} // namespace Vexlor::Tool
