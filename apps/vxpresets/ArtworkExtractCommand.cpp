#include "ArtworkCommands.h"

#include "ArtworkChoice.h"
#include "apps/artwork/ArtworkGroup.h"
#include "apps/artwork/ArtworkPictures.h"
#include "apps/host/Faces.h"
#include "apps/host/Failure.h"
#include "apps/host/Text.h"

#include "IVXArtworkImage.h"
#include "IVXData.h"
#include "runtime/foundation/VXAtomicFile.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace Vexlor::Tool
{

namespace
{

std::set<std::size_t> Chosen(const ArtworkFile& file, const std::vector<std::string>& faces)
{
    std::set<std::size_t> chosen;
    for (const auto& face : faces)
        chosen.insert(FindGroup(file, face));
    if (faces.empty())
        for (std::size_t i = 0; i < file.table.size(); ++i)
            chosen.insert(i);
    return chosen;
}

/// "20000000-FormatFaceIDMP4", and the position behind it for all but the first group of an identifier.
std::string GroupFileName(const ArtworkFile& file, std::size_t position)
{
    const auto faceID = file.table[position].faceID;
    const auto name = FaceName(faceID);
    const auto first = std::ranges::find(file.table, faceID, &VXArtworkEntry::faceID) - file.table.begin();
    return std::to_string(faceID) + (name.empty() ? name : '-' + name) +
           (static_cast<std::size_t>(first) == position ? "" : "-at-" + std::to_string(position));
}

void MakeFolder(const std::string& path)
{
    std::error_code fault;
    std::filesystem::create_directories(path, fault);
    if (fault)
        throw Failure(path + ": " + fault.message());
}

void WritePicture(const std::string& path, const IVXArtworkImage& image)
{
    std::string error;
    const std::string_view bytes(reinterpret_cast<const char*>(image.Bytes()), image.Size());
    if (!WriteFileAtomically(path, bytes, &error))
        throw Failure(error);
}

/// Number of pictures written. Of those of one key the first is meant, here as everywhere.
int WriteGroup(const std::string& start, const ArtworkGroup& group)
{
    std::set<int> written;
    for (const auto& [key, image] : group.pictures)
        if (written.insert(key).second)
            WritePicture(start + '-' + KeyText(key) + '.' + FileEndingOf(image->Format()), *image);
    return static_cast<int>(written.size());
}

} // namespace

std::string ArtworkExtractCommand(const Request& request, const Catalogue&, const Style&)
{
    const auto file = OpenRequested(request.artwork);
    const auto chosen = Chosen(file, request.artwork.faces);
    const auto& folder = request.artwork.target;
    MakeFolder(folder);
    int count = 0;
    for (const auto position : chosen)
        count += WriteGroup(folder + '/' + GroupFileName(file, position),
                            ReadGroup(*BlobOf(file, file.table[position])));
    return OneLine(folder) + ": " + Counted(count, "picture", "pictures") + '\n';
}

} // namespace Vexlor::Tool
