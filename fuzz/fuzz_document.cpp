#include "fuzz/Require.h"

#include "IVXFormatNode.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <cstdint>
#include <string>
#include <string_view>

// A document that can be read is completed when it is first written, and from then on reads and writes as the
// same text; a clone of the tree writes that text too. What a document leaves out, such as a codec's levels,
// may lie deeper than can be read: then there is no text.

namespace
{

using namespace Vexlor;

std::string TextOf(const IVXFormatNode& root) { return JsonText(*root.JsonValue()); }

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    std::string error;
    const auto json = ParseJson({reinterpret_cast<const char*>(bytes), size}, &error);
    Require(error.empty() == (json != nullptr));
    if (!json)
        return 0;
    const auto root = IVXFormatNode::MallocFormatNode(json);
    const auto written = TextOf(*root);
    Require(TextOf(*root->Clone(IVXFormatNode::CloneAll)) == written);
    if (written.empty())
        return 0;
    const auto reread = ParseJson(written);
    Require(reread != nullptr);
    Require(TextOf(*IVXFormatNode::MallocFormatNode(reread)) == written);
    return 0;
}
