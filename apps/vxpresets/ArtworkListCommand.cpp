#include "ArtworkCommands.h"

#include "ArtworkChoice.h"
#include "Table.h"
#include "apps/artwork/ArtworkGroup.h"
#include "apps/artwork/ArtworkPictures.h"
#include "apps/host/Faces.h"
#include "apps/host/Json.h"
#include "apps/host/Text.h"

#include "IVXArtworkImage.h"
#include "IVXData.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

/// The different sizes of the group's pictures, in the order in which they appear.
std::string SizesText(const ArtworkGroup& group)
{
    std::vector<std::string> sizes;
    for (const auto& picture : group.pictures)
    {
        const auto size = SizeOf(*picture.image);
        const auto text =
            size.isEmpty() ? "?" : std::to_string(size.width()) + " x " + std::to_string(size.height());
        if (std::ranges::find(sizes, text) == sizes.end())
            sizes.push_back(text);
    }
    return Joined(sizes, ", ");
}

Json PictureJson(const ArtworkPicture& picture)
{
    const auto size = SizeOf(*picture.image);
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt("key", picture.key);
    if (IsShown(picture.key))
    {
        json->SetValueInt("variant", picture.key / 10);
        json->SetValueString("mode", std::string(ModeName(picture.key % 10)));
    }
    json->SetValueString("format", FormatName(picture.image->Format()));
    json->SetValueInt("width", std::max(size.width(), 0));
    json->SetValueInt("height", std::max(size.height(), 0));
    json->SetValueInt64("bytes", picture.image->Size());
    return json;
}

Json GroupJson(const ArtworkFile& file, const VXArtworkEntry& entry)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt("position", static_cast<int>(&entry - file.table.data()));
    json->SetValueInt("faceID", entry.faceID);
    json->SetValueString("name", FaceName(entry.faceID));
    json->SetValueInt64("offset", static_cast<std::int64_t>(entry.offset));
    json->SetValueInt64("bytes", entry.size);
    json->SetValueArray("pictures", JsonElements(ReadGroup(*BlobOf(file, entry)).pictures, PictureJson));
    return json;
}

std::string ListJson(const ArtworkFile& file)
{
    return JsonDocument(
        JsonElements(file.table, [&file](const auto& entry) { return GroupJson(file, entry); }));
}

} // namespace

std::string ArtworkListCommand(const Request& request, const Catalogue&, const Style& style)
{
    const auto file = OpenRequested(request.artwork);
    if (request.asJson)
        return ListJson(file);
    Table table({"#", "Face", "Name", "Pictures", "Sizes", "Bytes"});
    for (std::size_t i = 0; i < file.table.size(); ++i)
    {
        const auto& entry = file.table[i];
        const auto group = ReadGroup(*BlobOf(file, entry));
        table.Add({std::to_string(i), std::to_string(entry.faceID), FaceName(entry.faceID),
                   std::to_string(group.pictures.size()), SizesText(group), std::to_string(entry.size)});
    }
    return table.Text(style);
}

} // namespace Vexlor::Tool
