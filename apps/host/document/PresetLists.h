#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{
class IVXCodecPreset;
}

namespace Vexlor::Tool
{

/// One list of a codec preset, its entries by their display texts.
class PresetList
{
public:
    virtual ~PresetList() = default;
    PresetList(const PresetList&) = delete;
    PresetList& operator=(const PresetList&) = delete;

    /// The display texts of all entries.
    virtual std::vector<std::string> Texts() const = 0;
    /// Number of the current entry; it may lie outside the list.
    virtual int Current() const = 0;
    /// Makes that entry the current one.
    virtual void Choose(int index) = 0;
    /// Number of the entry of the value that the text tells in figures or by a name that the codec knows;
    /// nothing where it tells none. A value that the codec takes is put behind the list where it is not in
    /// it. Throws Failure for one that it does not take, with what it takes instead.
    virtual std::optional<int> FindValue(std::string_view text) = 0;

protected:
    PresetList() = default;
};

enum class PresetListKind
{
    Resolution,
    FrameRate,
    SampleRate,
    Channels,
    Profile,
    Level,
    Quality,
    Format, ///< of pixels or of samples
};

/// That list of a codec preset, which must outlive it.
std::unique_ptr<PresetList> PresetListOf(PresetListKind kind, IVXCodecPreset& codec);

/// Makes the entry that the text means the current one: by its display text, in whatever case and spacing,
/// or by its value. Answers the entry's display text, and in isAdded whether it was not in the list before.
/// Throws Failure, which lists what there is.
std::string ChooseEntry(PresetList& list, std::string_view text, bool& isAdded);

} // namespace Vexlor::Tool
