#pragma once

#include "EntryList.h"

#include "apps/host/document/PresetCodecs.h"

#include <memory>
#include <vector>

namespace Vexlor
{
class IVXCodecPreset;
class IVXFormat;
class IVXFormatPreset;
} // namespace Vexlor

namespace Vexlor::Studio
{

/// The operations of a format preset for one of its two lists of codec presets.
struct StreamFamily
{
    using Preset = IVXFormatPreset;

    Tool::StreamKind kind;
    const char* noun; ///< "video codec"
    int (Preset::*count)() const;
    std::shared_ptr<IVXCodecPreset> (Preset::*at)(int);
    int (Preset::*current)() const;
    int (Preset::*choose)(int);
    std::shared_ptr<IVXCodecPreset> (Preset::*add)(int codecID);
    void (Preset::*remove)(int);
    void (Preset::*move)(int, int);
    std::vector<int> (IVXFormat::*taken)() const;
};

const StreamFamily& StreamOf(Tool::StreamKind kind);
/// The family's noun in the user's language.
QString Noun(const StreamFamily& family);

/// One of the two lists of codec presets of a format preset, which must outlive it.
class CodecEntries final : public EntryList
{
public:
    CodecEntries(IVXFormatPreset& preset, const StreamFamily& family) : m_preset(preset), m_family(family) {}

    QStringList Texts() const override;
    int Current() const override;
    void Choose(int index) override;
    void Remove(int index) override;
    void Move(int from, int to) override;

    /// The codec preset at index; empty outside the list.
    std::shared_ptr<IVXCodecPreset> At(int index) const;
    /// Puts a new codec preset behind the others.
    void Add(int codecID);
    /// The codecs that the container takes and that are not in the list, no codec first.
    std::vector<int> Addable() const;

private:
    IVXFormatPreset& m_preset;
    const StreamFamily& m_family;
};

} // namespace Vexlor::Studio
