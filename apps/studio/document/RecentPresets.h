#pragma once

#include <memory>
#include <unordered_set>

namespace Vexlor
{
class IVXFormatNode;
class IVXFormatPreset;
} // namespace Vexlor

namespace Vexlor::Studio
{

class PresetTree;

/// So many presets are kept as recently used.
inline constexpr int kMostRecentPresets = 10;

/// The category of recently used presets below that root; empty where there is none. It keeps itself: what
/// stands there may go at any time, so that nothing that a user makes may stand there.
std::shared_ptr<IVXFormatNode> FindRecentCategory(IVXFormatNode& root);

/// True for presets of one name and container, of which there is one among the recently used ones.
bool IsSamePreset(const IVXFormatPreset& one, const IVXFormatPreset& other);

/// The recently used presets of a tree, which keep themselves: no step can be undone.
class RecentPresets
{
public:
    explicit RecentPresets(PresetTree& tree) : m_tree(tree) {}

    /// Takes the presets that stand in the category for recently used ones, as after reading a document;
    /// more than are kept are somebody's own, and stay.
    void Adopt();
    /// Puts a copy of the preset, as it was when it was used, to the front of the category of recently used
    /// ones, which is made where it is missing; one of them itself moves to the front, as it is now. An older
    /// one of the same name and container goes, and so does what is beyond the bound. What did not come there
    /// in this way stays.
    void Note(const IVXFormatPreset& preset, const IVXFormatPreset& asItWas);

private:
    using Preset = std::shared_ptr<IVXFormatPreset>;

    void Drop(const Preset& preset, const std::shared_ptr<IVXFormatNode>& category);
    void DropOldest(const std::shared_ptr<IVXFormatNode>& category);

    PresetTree& m_tree;
    std::unordered_set<Preset> m_kept; // those that may go
};

} // namespace Vexlor::Studio
