#include "FaceChoices.h"

#include "apps/studio/tree/FaceIcons.h"
#include "catalog/icons/Faces.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QIcon>
#include <QString>

namespace Vexlor::Studio
{

namespace
{

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
    const FaceIcons icons;
    combo.addItem(QCoreApplication::translate("FaceChoices", "None"), 0);
    for (const auto& face : Catalog::kFaces)
        combo.addItem(icons.IconOf(face.id, true), ShortName(face.name), face.id);
}

} // namespace Vexlor::Studio
