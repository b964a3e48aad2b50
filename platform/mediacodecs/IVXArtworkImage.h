#pragma once

#include "VXMediaCodecsExport.h"

#include <cstdint>
#include <memory>

namespace Vexlor
{

class IVXData;

/// One encoded picture, as a file of its format would hold it.
class VX_MEDIACODECS_API IVXArtworkImage
{
public:
    /// Encoding of the picture's bytes. Numbers that are not listed are kept as they are.
    enum ArtworkImageFormat : int
    {
        ArtworkImageFormatUnknown = 0,
        ArtworkImageFormatPNG = 1,
        ArtworkImageFormatJPEG = 2,
        ArtworkImageFormatWebP = 3,
        ArtworkImageFormatBMP = 4,
        ArtworkImageFormatSVG = 5,
    };

    /// A picture without bytes, of unknown format.
    static std::shared_ptr<IVXArtworkImage> MallocArtworkImage();
    /// A picture that holds a copy of size encoded bytes.
    static std::shared_ptr<IVXArtworkImage> MallocArtworkImage(const std::uint8_t* bytes, std::uint32_t size,
                                                               ArtworkImageFormat format);

    /// The encoded bytes, readable by an image decoder; may be null when there are none.
    virtual const std::uint8_t* Bytes() const = 0;
    /// Number of encoded bytes.
    virtual std::uint32_t Size() const = 0;
    /// Encoding of the bytes.
    virtual ArtworkImageFormat Format() const = 0;
    /// The picture serialised for storage, format and bytes; a new buffer that FromData reads back exactly.
    virtual std::shared_ptr<IVXData> ToData() const = 0;
    /// Replaces the picture by one that ToData serialised; without bytes when the data is none of its making.
    virtual void FromData(const std::shared_ptr<const IVXData>& data) = 0;

protected:
    ~IVXArtworkImage() = default;
};

} // namespace Vexlor
