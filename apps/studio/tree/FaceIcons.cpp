#include "FaceIcons.h"

#include "apps/artwork/ArtworkFile.h"
#include "apps/artwork/DefaultArtwork.h"
#include "catalog/icons/Faces.h"

#include "IVXArtworkImageGroup.h"
#include "IVXData.h"

#include <algorithm>

namespace Vexlor::Studio
{

FaceIcons::FaceIcons()
    : m_file(std::make_unique<Tool::ArtworkFile>(Tool::OpenArtwork("artwork", Tool::DefaultArtwork())))
{
}

FaceIcons::~FaceIcons() = default;

QIcon FaceIcons::IconOf(int faceID, bool isPreset) const
{
    const auto known = m_icons.find(faceID);
    const auto& icon = known != m_icons.end() ? known->second : m_icons[faceID] = Load(faceID);
    const int other = isPreset ? Catalog::FormatFaceIDVideo : IVXArtworkImageMgr::CategoryFaceIDGeneral;
    return icon.isNull() && faceID != other ? IconOf(other, isPreset) : icon;
}

QIcon FaceIcons::Load(int faceID) const
{
    const auto entry = std::ranges::find(m_file->table, faceID, &VXArtworkEntry::faceID);
    if (entry == m_file->table.end())
        return {};
    const auto group = IVXArtworkImageGroup::MallocArtworkImageGroup();
    group->FromData(Tool::BlobOf(*m_file, *entry));
    return group->ToIcon();
}

} // namespace Vexlor::Studio
