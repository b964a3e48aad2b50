#pragma once

#include "apps/host/document/PresetCodecs.h"
#include "apps/host/document/PresetLists.h"

#include <QString>

#include <span>

namespace Vexlor
{
class IVXCodecPreset;
}

namespace Vexlor::Studio
{

/// One kind of list of a codec preset: how it is named, and the operations that edit it.
struct ListFamily
{
    using Codec = IVXCodecPreset;

    Tool::PresetListKind kind;
    const char* label;             ///< "&Resolution"
    const char* noun;              ///< "resolution"
    const char* example = nullptr; ///< how an entry is typed; none where the list belongs to the codec
    bool isSeldom = false;         ///< most codecs offer nothing to choose from
    void (Codec::*remove)(int) = nullptr;
    void (Codec::*move)(int, int) = nullptr;
    void (Codec::*reset)() = nullptr;

    /// False where the list belongs to the codec.
    bool IsEditable() const { return reset != nullptr; }
};

/// The lists of a codec preset in the order in which they are shown.
std::span<const ListFamily> FamiliesOf(Tool::StreamKind kind);
/// The family's label in the user's language, with its mnemonic.
QString Label(const ListFamily& family);
/// The family's noun in the user's language.
QString Noun(const ListFamily& family);

} // namespace Vexlor::Studio
