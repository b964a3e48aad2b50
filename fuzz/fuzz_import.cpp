#include "fuzz/Require.h"

#include "apps/host/Failure.h"
#include "apps/host/document/DocumentFindings.h"
#include "apps/host/document/DocumentMeaning.h"
#include "apps/host/document/DocumentShape.h"
#include "apps/host/document/Qualities.h"
#include "apps/host/import/Import.h"

#include "IVXFormatNode.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <cstdint>
#include <string>
#include <string_view>

// Presets of other programs are refused with a reason, or become a document in which the check finds no
// error and which reads back as it was written; every finding says where it belongs and why.

namespace
{

using namespace Vexlor;

void CheckDocument(const IVXFormatNode& root)
{
    const auto text = JsonText(*root.JsonValue());
    if (text.empty()) // what was as deep as can be read has got levels of its own
        return;
    const auto json = ParseJson(text);
    Require(json != nullptr);
    const auto reread = IVXFormatNode::MallocFormatNode(json);
    Tool::TakeUpQualities(*reread, *json);
    Require(JsonText(*reread->JsonValue()) == text);
    const Tool::DocumentTree tree(text);
    Tool::DocumentFindings findings(tree);
    Tool::CheckShape(tree, findings);
    Tool::CheckMeaning(tree, {}, findings);
    Require(findings.Errors() == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    try
    {
        const auto import = Tool::ImportPresets("file", {reinterpret_cast<const char*>(bytes), size});
        Require(!import.presets.empty());
        for (const auto& finding : import.findings)
            Require(finding.offset <= size && finding.place.line > 0 && !finding.path.empty() &&
                    !finding.what.empty());
        CheckDocument(*import.root);
    }
    catch (const Tool::Failure& failure)
    {
        Require(std::string_view(failure.what()).starts_with("file:"));
    }
    return 0;
}
