#pragma once

#include "presets/VXHandleList.h"

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

/// The values that the elements of a JSON array describe, each as the kind's factory reads it. They stand in
/// one block of memory, which lives as long as one of the handles: a document's hundreds of thousands of
/// values are made in a fraction of the time that allocating each would take.
template <typename T>
HandleList<T> ReadValues(const IVXJsonValue& array);

/// What Clone answers for each value of the list; in one block as above, unless values of others are among
/// them.
template <typename T>
HandleList<T> CloneValues(const HandleList<T>& list);

/// A value for each of the formats, in one block as above.
HandleList<IVXSampleFmtPreset> SampleFmtValues(const std::vector<int>& formats, bool isAudio);

// Each kind's source defines its own, the class being hidden there.
template <>
HandleList<IVXChannelLayoutPreset> ReadValues(const IVXJsonValue& array);
template <>
HandleList<IVXFrameratePreset> ReadValues(const IVXJsonValue& array);
template <>
HandleList<IVXLevelPreset> ReadValues(const IVXJsonValue& array);
template <>
HandleList<IVXProfilePreset> ReadValues(const IVXJsonValue& array);
template <>
HandleList<IVXResolutionPreset> ReadValues(const IVXJsonValue& array);
template <>
HandleList<IVXSampleratePreset> ReadValues(const IVXJsonValue& array);
template <>
HandleList<IVXChannelLayoutPreset> CloneValues(const HandleList<IVXChannelLayoutPreset>& list);
template <>
HandleList<IVXCodecQualityPreset> CloneValues(const HandleList<IVXCodecQualityPreset>& list);
template <>
HandleList<IVXFrameratePreset> CloneValues(const HandleList<IVXFrameratePreset>& list);
template <>
HandleList<IVXLevelPreset> CloneValues(const HandleList<IVXLevelPreset>& list);
template <>
HandleList<IVXProfilePreset> CloneValues(const HandleList<IVXProfilePreset>& list);
template <>
HandleList<IVXResolutionPreset> CloneValues(const HandleList<IVXResolutionPreset>& list);
template <>
HandleList<IVXSampleFmtPreset> CloneValues(const HandleList<IVXSampleFmtPreset>& list);
template <>
HandleList<IVXSampleratePreset> CloneValues(const HandleList<IVXSampleratePreset>& list);

/// A list of count values of the hidden class Value in one block; make answers the one at a position.
template <typename T, typename Value, typename Make>
HandleList<T> MakeBlock(std::size_t count, const Make& make)
{
    HandleList<T> list;
    if (count == 0)
        return list;
    list.reserve(count);
    const auto block = std::make_shared<Value[]>(count);
    Value* value = block.get();
    for (std::size_t i = 0; i < count; ++i, ++value)
    {
        *value = make(i);
        list.emplace_back(block, value);
    }
    return list;
}

template <typename T, typename Value>
HandleList<T> ReadBlock(const IVXJsonValue& array)
{
    return MakeBlock<T, Value>(static_cast<std::size_t>(array.Size()),
                               [&array](std::size_t i) { return Value(*array.At(static_cast<int>(i))); });
}

template <typename T, typename Value>
HandleList<T> CloneBlock(const HandleList<T>& list)
{
    const auto isOurs = [](const std::shared_ptr<T>& entry) { return typeid(*entry) == typeid(Value); };
    if (!std::ranges::all_of(list, isOurs))
        return CloneEach(list);
    return MakeBlock<T, Value>(list.size(),
                               [&list](std::size_t i) { return static_cast<const Value&>(*list[i]).Copy(); });
}

} // namespace Vexlor
