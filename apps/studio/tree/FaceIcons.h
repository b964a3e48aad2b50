#pragma once

#include <QIcon>

#include <memory>
#include <unordered_map>

namespace Vexlor
{
class IVXStorage;
}

namespace Vexlor::Tool
{
struct ArtworkFile;
}

namespace Vexlor::Studio
{

/// The icons of the built-in artwork file by their face identifiers, each decoded when it is first shown.
class FaceIcons
{
public:
    FaceIcons();
    ~FaceIcons();
    FaceIcons(const FaceIcons&) = delete;
    FaceIcons& operator=(const FaceIcons&) = delete;

    /// The icon of that identifier; that of any preset or any category where there is none.
    QIcon IconOf(int faceID, bool isPreset) const;

private:
    QIcon Load(int faceID) const;

    std::unique_ptr<Tool::ArtworkFile> m_file;
    mutable std::unordered_map<int, QIcon> m_icons;
};

} // namespace Vexlor::Studio
