#pragma once

#include "VXExport.h"

#include <memory>

class QIcon;

namespace Vexlor
{

class IVXArtworkImage;
class IVXData;

/// The pictures that make one icon: up to three variants, sizes for example, for each of the four icon modes.
///
/// A picture's key is variant x 10 + mode; modes are numbered as QIcon::Mode (0 normal, 1 disabled, 2 active,
/// 3 selected), variants 0 to 2. Pictures under other keys are kept, stored and read back, but never shown.
class VX_PRESETS_API IVXArtworkImageGroup
{
public:
    /// A group without pictures.
    static std::shared_ptr<IVXArtworkImageGroup> MallocArtworkImageGroup();

    /// Stores a copy of the picture. Deliberately, a picture that is already there stays and the new one is
    /// dropped; an empty handle does nothing.
    virtual void SetArtworkImage(std::shared_ptr<const IVXArtworkImage> image, int variant, int mode) = 0;
    /// The picture of that variant and mode, shared with this group; empty when there is none.
    virtual std::shared_ptr<IVXArtworkImage> GetArtworkImage(int variant, int mode) const = 0;
    /// The group as the artwork file holds it; a new buffer that FromData reads back.
    virtual std::shared_ptr<IVXData> ToData() const = 0;
    /// Replaces all pictures by those of a blob. A blob of another kind is logged and leaves the group empty,
    /// as an empty handle does; of a damaged one the pictures that lie whole inside it are kept.
    virtual void FromData(std::shared_ptr<const IVXData> data) = 0;
    /// True when there is no picture.
    virtual bool IsEmpty() const = 0;
    /// The icon of the pictures, state QIcon::Off. Pictures that cannot be decoded are left out. Needs a
    /// QGuiApplication.
    virtual QIcon ToIcon() const = 0;

protected:
    ~IVXArtworkImageGroup() = default;
};

} // namespace Vexlor
