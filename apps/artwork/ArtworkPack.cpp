// The build's own tool, which makes the default artwork file:   vxpresets-pack FOLDER-OF-SVGS ARTWORK-FILE
#include "ArtworkChange.h"
#include "ArtworkLooks.h"
#include "apps/host/Failure.h"

#include "catalog/icons/Faces.h"

#include "IVXArtworkImageGroup.h"
#include "IVXData.h"

#include <cstdio>

namespace Vexlor::Tool
{

namespace
{

ArtworkSources Pack(const std::string& folder)
{
    ArtworkSources groups;
    for (const auto& face : Catalog::kFaces)
    {
        const auto group = IVXArtworkImageGroup::MallocArtworkImageGroup();
        FillFrom(folder + '/' + std::string(face.picture), *group);
        groups.push_back({.faceID = face.id, .blob = group->ToData()});
    }
    return groups;
}

int Main(const std::string& folder, const std::string& file)
{
    try
    {
        ChangeArtwork(file, true,
                      [&folder](const ArtworkFile&, ArtworkSources& groups) { groups = Pack(folder); });
        return 0;
    }
    catch (const Failure& failure)
    {
        static_cast<void>(std::fprintf(stderr, "vxpresets-pack: %s\n", failure.what()));
        return 1;
    }
}

} // namespace

} // namespace Vexlor::Tool

int main(int argc, char** argv)
{
    if (argc == 3)
        return Vexlor::Tool::Main(argv[1], argv[2]);
    static_cast<void>(std::fputs("usage: vxpresets-pack FOLDER-OF-SVGS ARTWORK-FILE\n", stderr));
    return 2;
}
