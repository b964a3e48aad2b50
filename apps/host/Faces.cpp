#include "Faces.h"

#include "NameSearch.h"
#include "Quantities.h"

#include "catalog/icons/Faces.h"

#include <algorithm>

namespace Vexlor::Tool
{

std::string FaceName(int faceID)
{
    const auto face = std::ranges::find(Catalog::kFaces, faceID, &Catalog::Face::id);
    return face != Catalog::kFaces.end() ? std::string(face->name) : std::string();
}

std::string FaceText(int faceID)
{
    const auto name = FaceName(faceID);
    return std::to_string(faceID) + (name.empty() ? name : " (" + name + ')');
}

int FaceOf(const std::string& text)
{
    if (const auto number = IntegerOf(text))
        return *number;
    std::vector<Candidate> names;
    names.reserve(Catalog::kFaces.size());
    for (const auto& face : Catalog::kFaces)
        names.push_back({FaceText(face.id), {std::string(face.name)}});
    return Catalog::kFaces[FindByName(names, text, "face identifier", "vxpresets")].id;
}

} // namespace Vexlor::Tool
