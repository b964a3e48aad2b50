#include "ArtworkFindings.h"

#include "apps/artwork/ArtworkGroup.h"
#include "apps/artwork/ArtworkPictures.h"
#include "apps/host/Faces.h"

#include "IVXArtworkImage.h"
#include "IVXData.h"

#include <algorithm>
#include <map>
#include <set>

namespace Vexlor::Tool
{

namespace
{

using Findings = std::vector<ArtworkFinding>;

/// The groups in the order in which their bytes stand in the file.
std::vector<std::size_t> InFileOrder(const VXArtworkTable& table)
{
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < table.size(); ++i)
        order.push_back(i);
    std::ranges::stable_sort(order, {}, [&table](std::size_t i) { return table[i].offset; });
    return order;
}

std::string GroupText(const ArtworkFile& file, std::size_t position)
{
    return "group #" + std::to_string(position) + ", " + FaceText(file.table[position].faceID);
}

bool CheckCount(const ArtworkFile& file, Findings& findings)
{
    const auto stated = static_cast<int>(file.statedGroups);
    const auto counts = "the head counts " + std::to_string(stated) + " groups, ";
    if (stated < 0 || file.statedGroups > kMostArtworkEntries)
        findings.push_back(
            {true, {}, counts + "the table has room for " + std::to_string(kMostArtworkEntries)});
    else if (file.statedGroups != file.table.size())
        findings.push_back({true, {}, counts + "the table has " + std::to_string(file.table.size())});
    return findings.empty();
}

void CheckIdentifiers(const ArtworkFile& file, Findings& findings)
{
    std::map<int, std::size_t> first;
    for (std::size_t i = 0; i < file.table.size(); ++i)
    {
        const auto [same, isNew] = first.emplace(file.table[i].faceID, i);
        if (!isNew)
            findings.push_back({true, i,
                                "has the identifier of group #" + std::to_string(same->second) +
                                    ", which is found in its place"});
    }
}

void CheckPlace(const ArtworkFile& file, std::size_t position, Findings& findings)
{
    const auto& entry = file.table[position];
    if (!IsWhole(file, entry))
        findings.push_back({true, position,
                            "its " + std::to_string(entry.size) + " bytes at " +
                                std::to_string(entry.offset) + " reach beyond the end of the file, " +
                                std::to_string(file.size)});
    if (entry.offset < kArtworkHeadSize)
        findings.push_back({true, position,
                            "lies at " + std::to_string(entry.offset) + ", inside the table's " +
                                std::to_string(kArtworkHeadSize) + " bytes"});
}

// Every group against the one before it that reaches farthest.
void CheckOverlaps(const ArtworkFile& file, Findings& findings)
{
    std::uint64_t end = kArtworkHeadSize;
    std::uint64_t unused = 0;
    std::optional<std::size_t> farthest;
    for (const auto i : InFileOrder(file.table))
    {
        const auto& entry = file.table[i];
        if (!IsWhole(file, entry) || entry.offset < kArtworkHeadSize)
            continue;
        if (entry.offset > end)
            unused += entry.offset - end;
        if (farthest && entry.offset < end && entry.size > 0)
            findings.push_back({true, i, "overlaps " + GroupText(file, *farthest)});
        if (entry.offset + entry.size > end)
            farthest = i;
        end = std::max(end, entry.offset + entry.size);
    }
    if (file.size > end)
        unused += file.size - end;
    if (unused > 0)
        findings.push_back({false, {}, std::to_string(unused) + " bytes are used by no group"});
}

void CheckPicture(std::size_t position, const ArtworkPicture& picture, Findings& findings)
{
    const auto name = "picture " + KeyText(picture.key);
    if (!IsShown(picture.key))
        findings.push_back({false, position, name + " is never shown"});
    if (!Decoded(*picture.image).isNull())
        return;
    // A later version may know it; a format that has a name should be what it says.
    const auto format = picture.image->Format();
    const bool isKnown = picture.image->Size() == 0 || FileEndingOf(format) != "bin";
    findings.push_back({isKnown, position, name + ", format " + FormatName(format) + ", cannot be decoded"});
}

void CheckGroup(const ArtworkFile& file, std::size_t position, Findings& findings)
{
    const auto group = ReadGroup(*BlobOf(file, file.table[position]));
    if (!group.isGroup)
    {
        findings.push_back({true, position, "is no group of pictures"});
        return;
    }
    if (group.statedPictures != group.pictures.size())
        findings.push_back({true, position,
                            "counts " + std::to_string(static_cast<int>(group.statedPictures)) +
                                " pictures, " + std::to_string(group.pictures.size()) + " are whole"});
    else if (group.pictures.empty())
        findings.push_back({false, position, "has no pictures"});
    std::set<int> keys;
    for (const auto& picture : group.pictures)
    {
        if (!keys.insert(picture.key).second)
            findings.push_back({false, position, "picture " + KeyText(picture.key) + " is there twice"});
        CheckPicture(position, picture, findings);
    }
}

} // namespace

std::vector<ArtworkFinding> FindingsOf(const ArtworkFile& file)
{
    Findings findings;
    if (!CheckCount(file, findings))
        return findings; // most of what was read as the table is something else
    CheckIdentifiers(file, findings);
    for (std::size_t i = 0; i < file.table.size(); ++i)
        CheckPlace(file, i, findings);
    CheckOverlaps(file, findings);
    for (std::size_t i = 0; i < file.table.size(); ++i)
        CheckGroup(file, i, findings);
    return findings;
}

} // namespace Vexlor::Tool
