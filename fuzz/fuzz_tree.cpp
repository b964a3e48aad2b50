#include "fuzz/ChoiceReader.h"
#include "fuzz/Require.h"

#include "tests/platform/ScriptedPlatform.h"
#include "tests/tree/NodeLists.h"
#include "tests/tree/Outline.h"

#include <algorithm>
#include <array>
#include <stdexcept>

// Whatever is done to the lists of a node, they hold what plain vectors hold to which the same is done by the
// rules' words. A clone of the tree, and the tree that its document describes, have its outline.

namespace
{

using namespace Vexlor;

constexpr int kMostSteps = 200;
constexpr int kMostEntries = 64;

/// One list of a node beside a plain vector of the handles that it must hold.
template <class Family>
class CheckedList
{
public:
    using Handle = typename Family::Handle;
    using Handles = std::vector<Handle>;

    explicit CheckedList(ChoiceReader& choices) : m_choices(choices) {}

    void Step()
    {
        using Self = CheckedList;
        static constexpr std::array kSteps{&Self::Add,       &Self::Insert,  &Self::InsertAll,
                                           &Self::RemoveAt,  &Self::Remove,  &Self::RemoveByName,
                                           &Self::RemoveAll, &Self::MoveAll, &Self::RemoveAllAt,
                                           &Self::Move,      &Self::SetList, &Self::Clear};
        const auto step = kSteps[static_cast<std::size_t>(m_choices.Below(kSteps.size()))];
        (this->*step)();
        Check();
    }

    Handles Held() const { return m_held; }
    const IVXFormatNode& Node() const { return m_list.Const(); }

private:
    int Count() const { return static_cast<int>(m_held.size()); }
    int Clamped(int position) const { return std::clamp(position, 0, Count()); }
    int Position() { return m_choices.Position(Count()); }
    auto Iterator(int position) { return m_held.begin() + position; }

    std::string Name() { return std::string(static_cast<std::size_t>(m_choices.Below(20)), 'n'); }

    /// A new one, one of the list, or an empty handle.
    Handle SomeHandle()
    {
        const int kind = m_choices.Below(8);
        if (kind == 0)
            return {};
        if (kind < 3 && Count() > 0)
            return m_held[static_cast<std::size_t>(m_choices.Below(Count()))];
        return Family::Make(Name());
    }

    Handles SomeHandles()
    {
        Handles handles(static_cast<std::size_t>(m_choices.Below(5)));
        for (auto& handle : handles)
            handle = SomeHandle();
        return handles;
    }

    std::vector<int> SomePositions()
    {
        std::vector<int> positions(static_cast<std::size_t>(m_choices.Below(6)));
        for (auto& position : positions)
            position = Position();
        return positions;
    }

    bool Full() const { return Count() >= kMostEntries; }

    static Handles Present(Handles handles)
    {
        std::erase(handles, nullptr);
        return handles;
    }

    bool Drop(int position)
    {
        if (position < 0 || position >= Count())
            return false;
        m_held.erase(Iterator(position));
        return true;
    }

    int IndexOf(const Handle& handle) const
    {
        for (int i = 0; i < Count(); ++i)
            if (m_held[static_cast<std::size_t>(i)] == handle)
                return i;
        return -1;
    }

    int IndexOfName(const std::string& name) const
    {
        for (int i = 0; i < Count(); ++i)
            if (m_held[static_cast<std::size_t>(i)]->Name() == name)
                return i;
        return -1;
    }

    /// Takes out those at the positions, in list order.
    Handles Taken(const std::vector<int>& positions, int& boundary)
    {
        Handles taken;
        for (int i = Count() - 1; i >= 0; --i)
            if (std::ranges::find(positions, i) != positions.end())
            {
                taken.insert(taken.begin(), m_held[static_cast<std::size_t>(i)]);
                m_held.erase(Iterator(i));
                boundary -= i < boundary ? 1 : 0;
            }
        return taken;
    }

    void Add()
    {
        const auto handle = Full() ? nullptr : SomeHandle();
        m_list(Family::kAdd, handle);
        if (handle)
            m_held.push_back(handle);
    }

    void Insert()
    {
        const auto handle = Full() ? nullptr : SomeHandle();
        const int position = Position();
        m_list(Family::kInsert, handle, position);
        if (handle)
            m_held.insert(Iterator(Clamped(position)), handle);
    }

    void InsertAll()
    {
        const auto handles = Full() ? Handles() : SomeHandles();
        const int position = Position();
        m_list(Family::kInsertAll, handles, position);
        const auto present = Present(handles);
        m_held.insert(Iterator(Clamped(position)), present.begin(), present.end());
    }

    void RemoveAt()
    {
        const int position = Position();
        Require(m_list(Family::kRemoveAt, position) == Drop(position));
    }

    void Remove()
    {
        const auto handle = SomeHandle();
        Require(m_list(Family::kRemove, handle) == Drop(IndexOf(handle)));
    }

    void RemoveByName()
    {
        const auto name = Name();
        Require(m_list(Family::kRemoveByName, name) == Drop(IndexOfName(name)));
    }

    void RemoveAll()
    {
        const auto handles = SomeHandles();
        bool removed = false;
        for (const auto& handle : handles)
            removed = Drop(IndexOf(handle)) || removed;
        Require(m_list(Family::kRemoveAll, handles) == removed);
    }

    void RemoveAllAt()
    {
        const auto positions = SomePositions();
        int boundary = 0;
        const bool removed = !Taken(positions, boundary).empty();
        Require(m_list(Family::kRemoveAllAt, positions) == removed);
    }

    void Move()
    {
        const int from = Position();
        const int to = Position();
        bool refused = false;
        try
        {
            m_list(Family::kMove, from, to);
        }
        catch (const std::out_of_range&)
        {
            refused = true;
        }
        int boundary = Clamped(to);
        const auto taken = Taken({from}, boundary);
        Require(refused == taken.empty());
        m_held.insert(Iterator(boundary), taken.begin(), taken.end());
    }

    void MoveAll()
    {
        const auto positions = SomePositions();
        int to = Position();
        m_list(Family::kMoveAll, positions, to);
        if (to < 0 || to > Count())
            return;
        const auto taken = Taken(positions, to);
        m_held.insert(Iterator(to), taken.begin(), taken.end());
    }

    void SetList()
    {
        const auto handles = SomeHandles();
        m_list(Family::kSetList, handles);
        m_held = Present(handles);
    }

    void Clear()
    {
        m_list(Family::kClear);
        m_held.clear();
    }

    void Check()
    {
        Require(m_list.Elements() == m_held);
        const auto handle = SomeHandle();
        Require(m_list(Family::kIndexOf, handle) == IndexOf(handle));
        const auto name = Name();
        const int named = IndexOfName(name);
        Require(m_list(Family::kIndexOfName, name) == named);
        Require(m_list(Family::kFind, name) ==
                (named < 0 ? nullptr : m_held[static_cast<std::size_t>(named)]));
        Require(m_list(Family::kFirst) == (m_held.empty() ? nullptr : m_held.front()));
        Require(m_list(Family::kLast) == (m_held.empty() ? nullptr : m_held.back()));
    }

    ChoiceReader& m_choices;
    NodeList<Family> m_list{""};
    Handles m_held;
};

void CheckCopies(const IVXFormatNode& node)
{
    const auto outline = Outline(node);
    Require(Outline(*node.Clone(IVXFormatNode::CloneAll)) == outline);
    Require(Outline(*IVXFormatNode::MallocFormatNode(node.JsonValue())) == outline);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const ScriptedPlatform platform;
    ChoiceReader choices(bytes, size);
    CheckedList<PresetFamily> presets(choices);
    CheckedList<ChildFamily> children(choices);
    for (int step = 0; step < kMostSteps && !choices.IsAtEnd(); ++step)
        choices.Below(3) == 0 ? presets.Step() : children.Step();
    const auto root = ChildFamily::Make("root");
    root->SetFormatPresetList(presets.Held());
    root->SetChildList(children.Held());
    CheckCopies(*root);
    // The same entries again, a level below.
    for (const auto& child : children.Held())
        child->SetFormatPresetList(presets.Held());
    CheckCopies(*root);
    return 0;
}
