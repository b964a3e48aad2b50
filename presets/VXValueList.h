#pragma once

#include "presets/VXHandleList.h"

#include <cstdint>
#include <memory>
#include <typeinfo>
#include <utility>
#include <vector>

namespace Vexlor
{

class IVXChannelLayoutPreset;
class IVXCodecQualityPreset;
class IVXFrameratePreset;
class IVXLevelPreset;
class IVXProfilePreset;
class IVXResolutionPreset;
class IVXSampleFmtPreset;
class IVXSampleratePreset;

/// An ordered list of values of one kind.
///
/// Values that are read, built in or copied stand in one block of memory, which the list keeps as a whole: a
/// document's hundreds of thousands of values are made, copied and destroyed in a fraction of the time that
/// allocating or counting each would take. A handle is made when one is asked for; it keeps the block. The
/// first change of the list makes handles of all. Reading never writes.
template <typename T>
class VXValueList
{
public:
    VXValueList() = default;
    VXValueList(HandleList<T> handles) { Keep(std::move(handles)); }
    VXValueList(const VXValueList&) = delete;
    VXValueList& operator=(const VXValueList&) = delete;
    VXValueList(VXValueList&&) noexcept = default;
    VXValueList& operator=(VXValueList&&) noexcept = default;

    /// A list of count values of the hidden class Value; make answers the one at a position.
    template <typename Value, typename Make>
    static VXValueList Block(std::size_t count, const Make& make);

    std::size_t Count() const
    {
        if (!m_values) // also where they were moved away
            return 0;
        return IsBlock() ? m_count : Listed().size();
    }
    const T& operator[](std::size_t index) const { return IsBlock() ? *Entry(index) : *Listed()[index]; }
    std::shared_ptr<T> Handle(std::size_t index) const
    {
        return IsBlock() ? std::shared_ptr<T>(m_values, Entry(index)) : Listed()[index];
    }
    template <typename Entry = T>
    HandleList<Entry> Handles() const;

    /// The list as handles, to be changed.
    HandleList<T>& Changing();

    /// Whether all values are of the hidden class; those of a block are.
    template <typename Value>
    bool HoldsOnly() const;

private:
    template <typename Value>
    static T* EntryOf(void* values, std::size_t index)
    {
        return static_cast<Value*>(values) + index;
    }

    void Keep(HandleList<T> handles)
    {
        m_values = std::make_shared<HandleList<T>>(std::move(handles));
        m_entry = nullptr;
    }

    // No values are a block of none.
    bool IsBlock() const { return m_entry || !m_values; }
    T* Entry(std::size_t index) const { return m_entry(m_values.get(), index); }
    HandleList<T>& Listed() const { return *static_cast<HandleList<T>*>(m_values.get()); }

    // A codec preset has eight lists, and a document thousands of those: so one handle serves for both kinds.
    std::shared_ptr<void> m_values; // the block's first value; without m_entry a HandleList
    T* (*m_entry)(void* values, std::size_t index) = nullptr;
    std::uint32_t m_count = 0; // of the block
};

template <typename T>
template <typename Value, typename Make>
VXValueList<T> VXValueList<T>::Block(std::size_t count, const Make& make)
{
    VXValueList list;
    if (count == 0)
        return list;
    auto block = std::make_shared<Value[]>(count);
    for (std::size_t i = 0; i < count; ++i)
        block[static_cast<std::ptrdiff_t>(i)] = make(i);
    Value* const first = block.get();
    list.m_values = std::shared_ptr<void>(std::move(block), first);
    list.m_entry = &EntryOf<Value>;
    list.m_count = static_cast<std::uint32_t>(count);
    return list;
}

template <typename T>
template <typename Entry>
HandleList<Entry> VXValueList<T>::Handles() const
{
    if (!IsBlock())
        return {Listed().begin(), Listed().end()};
    HandleList<Entry> handles;
    handles.reserve(Count());
    for (std::size_t i = 0; i < Count(); ++i)
        handles.push_back(Handle(i));
    return handles;
}

template <typename T>
HandleList<T>& VXValueList<T>::Changing()
{
    if (IsBlock())
        Keep(Handles());
    return Listed();
}

template <typename T>
template <typename Value>
bool VXValueList<T>::HoldsOnly() const
{
    const auto isOne = [](const std::shared_ptr<T>& entry) { return typeid(*entry) == typeid(Value); };
    return IsBlock() || std::ranges::all_of(Listed(), isOne);
}

/// The values that the elements of a JSON array describe, each as the kind's factory reads it.
template <typename T>
VXValueList<T> ReadValues(const IVXJsonValue& array);

/// What Clone answers for each value of the list.
template <typename T>
VXValueList<T> CloneValues(const VXValueList<T>& list);

/// A value for each of the formats, behind Auto where there is a choice of at least two.
VXValueList<IVXSampleFmtPreset> SampleFmtValues(const std::vector<int>& formats, bool isAudio);

// Each kind's source defines its own, the class being hidden there.
template <>
VXValueList<IVXChannelLayoutPreset> ReadValues(const IVXJsonValue& array);
template <>
VXValueList<IVXFrameratePreset> ReadValues(const IVXJsonValue& array);
template <>
VXValueList<IVXLevelPreset> ReadValues(const IVXJsonValue& array);
template <>
VXValueList<IVXProfilePreset> ReadValues(const IVXJsonValue& array);
template <>
VXValueList<IVXResolutionPreset> ReadValues(const IVXJsonValue& array);
template <>
VXValueList<IVXSampleratePreset> ReadValues(const IVXJsonValue& array);
template <>
VXValueList<IVXChannelLayoutPreset> CloneValues(const VXValueList<IVXChannelLayoutPreset>& list);
template <>
VXValueList<IVXCodecQualityPreset> CloneValues(const VXValueList<IVXCodecQualityPreset>& list);
template <>
VXValueList<IVXFrameratePreset> CloneValues(const VXValueList<IVXFrameratePreset>& list);
template <>
VXValueList<IVXLevelPreset> CloneValues(const VXValueList<IVXLevelPreset>& list);
template <>
VXValueList<IVXProfilePreset> CloneValues(const VXValueList<IVXProfilePreset>& list);
template <>
VXValueList<IVXResolutionPreset> CloneValues(const VXValueList<IVXResolutionPreset>& list);
template <>
VXValueList<IVXSampleFmtPreset> CloneValues(const VXValueList<IVXSampleFmtPreset>& list);
template <>
VXValueList<IVXSampleratePreset> CloneValues(const VXValueList<IVXSampleratePreset>& list);

template <typename T, typename Value>
VXValueList<T> ReadBlock(const IVXJsonValue& array)
{
    return VXValueList<T>::template Block<Value>(static_cast<std::size_t>(array.Size()),
                                                 [&array](std::size_t i)
                                                 { return Value(*array.At(static_cast<int>(i))); });
}

/// In one block, unless values of others are among them.
template <typename T, typename Value>
VXValueList<T> CloneBlock(const VXValueList<T>& list)
{
    if (!list.template HoldsOnly<Value>())
        return CloneEach(list.Handles());
    return VXValueList<T>::template Block<Value>(list.Count(), [&list](std::size_t i)
                                                 { return static_cast<const Value&>(list[i]).Copy(); });
}

template <typename T>
std::vector<std::shared_ptr<IVXJsonValue>> JsonOfEach(const VXValueList<T>& list)
{
    std::vector<std::shared_ptr<IVXJsonValue>> values;
    values.reserve(list.Count());
    for (std::size_t i = 0; i < list.Count(); ++i)
        values.push_back(list[i].JsonValue());
    return values;
}

} // namespace Vexlor
