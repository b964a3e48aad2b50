#include "ArtworkCommands.h"

#include "ArtworkChoice.h"
#include "apps/artwork/ArtworkChange.h"
#include "apps/artwork/ArtworkGroup.h"
#include "apps/artwork/ArtworkLooks.h"
#include "apps/host/Faces.h"
#include "apps/host/Failure.h"
#include "apps/host/Text.h"

#include "IVXArtworkImage.h"
#include "IVXArtworkImageGroup.h"
#include "IVXArtworkImageMgr.h"
#include "IVXData.h"

#include <algorithm>
#include <functional>
#include <set>

namespace Vexlor::Tool
{

namespace
{

/// "VARIANT:MODE=PICTURE" in its parts.
struct PictureChoice
{
    int variant = -1;
    int mode = -1;
    std::string path;
};

PictureChoice ReadChoice(const std::string& text)
{
    const auto colon = text.find(':');
    const auto equals = text.find('=');
    PictureChoice choice;
    if (colon == 1 && equals != std::string::npos && equals > colon)
        choice = {text[0] - '0', ModeOfName(text.substr(2, equals - 2)), text.substr(equals + 1)};
    const bool isVariant = choice.variant >= 0 && choice.variant < kArtworkVariants;
    if (!isVariant || choice.mode < 0 || choice.path.empty())
        throw WrongUsage(Quoted(text) + " is not VARIANT:MODE=PICTURE, as in 0:normal=icon.png");
    return choice;
}

/// The group that the request describes, as the file holds it.
std::shared_ptr<const IVXData> NewGroup(const ArtworkRequest& request)
{
    const auto group = IVXArtworkImageGroup::MallocArtworkImageGroup();
    for (const auto& text : request.pictures)
    {
        const auto choice = ReadChoice(text);
        if (group->GetArtworkImage(choice.variant, choice.mode))
            throw WrongUsage(Quoted(text) + ": there is another picture of that variant and mode");
        group->SetArtworkImage(LoadPicture(choice.path), choice.variant, choice.mode);
    }
    if (request.drawing)
        FillFrom(*request.drawing, *group); // what was named stays
    if (group->IsEmpty())
        throw WrongUsage("no pictures: --from or --picture is required");
    return group->ToData();
}

bool Holds(const ArtworkSources& groups, int faceID)
{
    return std::ranges::find(groups, faceID, &ArtworkSource::faceID) != groups.end();
}

// As the library gives them out: it keeps the first two categories free.
int LowestFreeFace(const ArtworkSources& groups)
{
    int faceID = 1;
    while (Holds(groups, faceID) || faceID == IVXArtworkImageMgr::CategoryFaceIDCustomize ||
           faceID == IVXArtworkImageMgr::CategoryFaceIDRecentList)
        ++faceID;
    return faceID;
}

std::string Done(const std::string& file, const std::string& what)
{
    return OneLine(file + ": " + what) + '\n';
}

} // namespace

std::string ArtworkAddCommand(const Request& request, const Catalogue&, const Style&)
{
    const auto& path = *request.artwork.file;
    const auto wanted = request.artwork.face ? std::optional(FaceOf(*request.artwork.face)) : std::nullopt;
    const auto blob = NewGroup(request.artwork);
    int faceID = 0;
    ChangeArtwork(path, true,
                  [&](const ArtworkFile&, ArtworkSources& groups)
                  {
                      faceID = wanted ? *wanted : LowestFreeFace(groups);
                      if (Holds(groups, faceID))
                          throw Failure(path + ": group " + FaceText(faceID) + " is there; replace it");
                      groups.push_back({.faceID = faceID, .blob = blob});
                  });
    return Done(path, "added group " + FaceText(faceID));
}

std::string ArtworkReplaceCommand(const Request& request, const Catalogue&, const Style&)
{
    const auto& path = *request.artwork.file;
    const auto blob = NewGroup(request.artwork);
    int faceID = 0;
    ChangeArtwork(path, false,
                  [&](const ArtworkFile& file, ArtworkSources& groups)
                  {
                      auto& group = groups[FindGroup(file, request.artwork.faces.front())];
                      faceID = group.faceID;
                      group.blob = blob;
                  });
    return Done(path, "replaced group " + FaceText(faceID));
}

std::string ArtworkRemoveCommand(const Request& request, const Catalogue&, const Style&)
{
    const auto& path = *request.artwork.file;
    // From behind: what stands in front keeps its position.
    std::set<std::size_t, std::greater<>> positions;
    ChangeArtwork(path, false,
                  [&](const ArtworkFile& file, ArtworkSources& groups)
                  {
                      for (const auto& face : request.artwork.faces)
                          positions.insert(FindGroup(file, face));
                      for (const auto position : positions)
                          groups.erase(groups.begin() + static_cast<std::ptrdiff_t>(position));
                  });
    return Done(path, "removed " + Counted(static_cast<int>(positions.size()), "group", "groups"));
}

std::string ArtworkCompactCommand(const Request& request, const Catalogue&, const Style&)
{
    const auto& path = *request.artwork.file;
    std::uint64_t before = 0;
    ChangeArtwork(path, false, [&before](const ArtworkFile& file, ArtworkSources&) { before = file.size; });
    const auto after = OpenArtwork(path).size;
    return Done(path, std::to_string(before) + " bytes before, " + std::to_string(after) + " after");
}

} // namespace Vexlor::Tool
