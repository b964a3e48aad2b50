#pragma once

#include "CodecRules.h"
#include "DocumentTree.h"

#include <array>
#include <map>

namespace Vexlor::Tool
{

class DocumentFindings;

/// What a container takes of one kind, video or audio.
struct ContainerSide
{
    std::string container; ///< its name; empty for one that is not known, which may take anything
    std::vector<int> codecs = {};
};

/// Looks for what nobody can have meant in codec presets.
class DocumentCodecs
{
public:
    DocumentCodecs(const DocumentTree& tree, DocumentFindings& findings) : m_tree(tree), m_findings(findings)
    {
    }

    /// Looks at one that stands in a container's list.
    void Check(DocumentPosition preset, const ContainerSide& side);

private:
    using Values = void (DocumentCodecs::*)(DocumentPosition entry, CodecRules& rules);

    struct List
    {
        std::string_view index;
        std::string_view entries;
        Values check;
    };

    static const std::array<List, 6> kLists;

    CodecRules& RulesOf(int codecID);
    void CheckCodec(DocumentPosition preset, const CodecRules& rules, const ContainerSide& side);
    void CheckName(DocumentPosition preset, const CodecRules& rules);
    void CheckIndices(DocumentPosition preset, const CodecRules& rules);
    void CheckAspect(DocumentPosition preset);
    void CheckSize(DocumentPosition entry, CodecRules& rules);
    void CheckRate(DocumentPosition entry, CodecRules& rules);
    void CheckSamplerate(DocumentPosition entry, CodecRules& rules);
    void CheckLayout(DocumentPosition entry, CodecRules& rules);
    void CheckProfile(DocumentPosition entry, CodecRules& rules);
    void CheckLevel(DocumentPosition entry, CodecRules& rules);
    template <typename Text>
    void Refuse(DocumentPosition value, const CodecRules& rules, const std::string& inPlace, Text text);

    const DocumentTree& m_tree;
    DocumentFindings& m_findings;
    std::map<int, CodecRules> m_rules;
};

} // namespace Vexlor::Tool
