#include "FaceChoices.h"

#include "apps/artwork/ArtworkFile.h"
#include "apps/artwork/DefaultArtwork.h"

#include "IVXArtworkImageGroup.h"

#include "catalog/icons/Faces.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QIcon>

namespace Vexlor::Studio
{

namespace
{

QIcon IconOf(const Tool::ArtworkFile& artwork, int faceID)
{
    for (const auto& entry : artwork.table)
    {
        if (entry.faceID != faceID)
            continue;
        const auto group = IVXArtworkImageGroup::MallocArtworkImageGroup();
        group->FromData(Tool::BlobOf(artwork, entry));
        return group->ToIcon();
    }
    return {};
}

/// "WebVideo" of "CategoryFaceIDWebVideo"
QString ShortName(std::string_view name)
{
    constexpr std::string_view kMiddle = "FaceID";
    const auto middle = name.find(kMiddle);
    if (middle != std::string_view::npos)
        name.remove_prefix(middle + kMiddle.size());
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

} // namespace

void FillFaces(QComboBox& combo)
{
    const auto artwork = Tool::OpenArtwork("built-in", Tool::DefaultArtwork());
    combo.addItem(QCoreApplication::translate("FaceChoices", "None"), 0);
    for (const auto& face : Catalog::kFaces)
        combo.addItem(IconOf(artwork, face.id), ShortName(face.name), face.id);
}

} // namespace Vexlor::Studio
