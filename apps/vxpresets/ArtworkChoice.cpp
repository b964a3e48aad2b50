#include "ArtworkChoice.h"

#include "apps/artwork/DefaultArtwork.h"
#include "apps/host/Faces.h"
#include "apps/host/Failure.h"
#include "apps/host/NameSearch.h"
#include "apps/host/Quantities.h"
#include "apps/host/Text.h"

#include "catalog/icons/Faces.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr const char* kBuiltIn = "built-in artwork";

std::size_t GroupAt(const ArtworkFile& file, const std::string& text)
{
    const auto number = IntegerOf(std::string_view(text).substr(1));
    if (number && *number >= 0 && static_cast<std::size_t>(*number) < file.table.size())
        return static_cast<std::size_t>(*number);
    throw Failure(file.name + ": no group at " + Quoted(text) + ", there are " +
                  Counted(static_cast<int>(file.table.size()), "group", "groups"));
}

std::size_t GroupOfFace(const ArtworkFile& file, int faceID)
{
    const auto found = std::ranges::find(file.table, faceID, &VXArtworkEntry::faceID);
    if (found == file.table.end())
        throw Failure(file.name + ": no group " + FaceText(faceID));
    return static_cast<std::size_t>(found - file.table.begin());
}

std::vector<Candidate> NamesOf(const std::vector<int>& faceIDs)
{
    std::vector<Candidate> names;
    names.reserve(faceIDs.size());
    for (const int faceID : faceIDs)
        names.push_back({FaceText(faceID), {FaceName(faceID)}});
    return names;
}

// Those that are there once and have a name.
std::vector<int> NamedFaces(const ArtworkFile& file)
{
    std::vector<int> faceIDs;
    for (const auto& face : Catalog::kFaces)
        if (std::ranges::find(file.table, face.id, &VXArtworkEntry::faceID) != file.table.end())
            faceIDs.push_back(face.id);
    return faceIDs;
}

} // namespace

ArtworkFile OpenRequested(const ArtworkRequest& request)
{
    return request.file ? OpenArtwork(*request.file) : OpenArtwork(kBuiltIn, DefaultArtwork());
}

std::size_t FindGroup(const ArtworkFile& file, const std::string& text)
{
    if (text.starts_with('#'))
        return GroupAt(file, text);
    if (const auto number = IntegerOf(text))
        return GroupOfFace(file, *number);
    const auto faceIDs = NamedFaces(file);
    return GroupOfFace(file, faceIDs[FindByName(NamesOf(faceIDs), text, "group", file.name)]);
}

} // namespace Vexlor::Tool
