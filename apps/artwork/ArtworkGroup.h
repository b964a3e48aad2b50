#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{
class IVXArtworkImage;
class IVXData;
} // namespace Vexlor

namespace Vexlor::Tool
{

inline constexpr int kArtworkVariants = 3;
inline constexpr int kArtworkModes = 4;

/// A picture and its key, variant x 10 + mode.
struct ArtworkPicture
{
    int key = 0;
    std::shared_ptr<IVXArtworkImage> image;
};

/// What the bytes of a group hold.
struct ArtworkGroup
{
    bool isGroup = false; ///< false for bytes of another kind
    std::uint32_t statedPictures =
        0; ///< what the bytes say; as many pictures as lie whole inside them follow
    std::vector<ArtworkPicture> pictures = {};
};

/// The group that these bytes hold; nothing is read outside of them.
ArtworkGroup ReadGroup(const IVXData& blob);

/// "normal", "disabled", "active" or "selected"; empty for another number.
std::string_view ModeName(int mode);
/// Number of the mode of that name, or -1.
int ModeOfName(std::string_view name);
/// True for the keys that become part of an icon.
bool IsShown(int key);
/// "1-disabled"; "key-35" for one that is never shown.
std::string KeyText(int key);

} // namespace Vexlor::Tool
