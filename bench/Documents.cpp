#include "bench/Documents.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "VXMediaCodecs.h"
#include "runtime/foundation/VXJson.h"

#include <map>
#include <vector>

namespace Vexlor::Bench
{

std::shared_ptr<IVXFormatNode> TreeOf(int presets)
{
    constexpr int kPresetsANode = 20;
    const auto containers = VXMediaCodecSupportOutputAllMediaFormats();
    auto root = IVXFormatNode::MallocFormatNode(std::shared_ptr<IVXFormatNode>());
    std::shared_ptr<IVXFormatNode> node;
    for (int i = 0; i < presets; ++i)
    {
        if (i % kPresetsANode == 0)
        {
            node = IVXFormatNode::MallocFormatNode(root);
            node->SetName("Category " + std::to_string(i / kPresetsANode));
        }
        const auto& container = containers[static_cast<std::size_t>(i) % containers.size()];
        auto preset = IVXFormatPreset::MallocFormatPreset(container, "");
        preset->SetName(container + ' ' + std::to_string(i));
        node->AddFormatPreset(std::move(preset));
    }
    return root;
}

const std::string& DocumentOf(int presets)
{
    static std::map<int, std::string> s_documents;
    auto& text = s_documents[presets];
    if (text.empty())
        text = JsonText(*TreeOf(presets)->JsonValue());
    return text;
}

} // namespace Vexlor::Bench
