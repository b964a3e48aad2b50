#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXAtomicFile.h"
#include "runtime/foundation/VXJson.h"

#include <cstdio>

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    std::string error;
    const auto document = Vexlor::ReadJsonFile(argv[1], &error);
    if (!document)
        return std::fprintf(stderr, "%s\n", error.c_str()), 1;
    const auto tree = Vexlor::IVXFormatNode::MallocFormatNode(document);

    const auto phone = Vexlor::IVXFormatPreset::MallocFormatPreset("MP4", "");
    phone->SetName("My Phone");
    phone->SetMaxWidth(1280);
    phone->SetMaxHeight(720);
    phone->SetMaxVideoBitrate(4'000'000);

    const auto mine = Vexlor::IVXFormatNode::MallocFormatNode(tree); // a child of tree from now on
    mine->SetName("Mine");
    mine->AddFormatPreset(phone);

    const auto text = Vexlor::JsonText(*tree->JsonValue(), Vexlor::JsonStyle::Indented);
    if (!Vexlor::WriteFileAtomically(argv[2], text, &error))
        return std::fprintf(stderr, "%s\n", error.c_str()), 1;
    return 0;
}
