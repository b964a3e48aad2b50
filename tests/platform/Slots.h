#pragma once

#include <bit>
#include <cstddef>
#include <vector>

namespace Vexlor
{

/// Position of a virtual operation in its interface's table of operations, counted from 0.
///
/// Reads the form that the Itanium C++ ABI gives to a pointer to a virtual member on x86-64: one more than
/// the offset of the table entry in bytes, then the adjustment of the object's address.
template <class Operation>
int SlotOf(Operation operation)
{
    struct Pointer
    {
        std::ptrdiff_t offset;
        std::ptrdiff_t adjustment;
    };
    const auto pointer = std::bit_cast<Pointer>(operation);
    return static_cast<int>((pointer.offset - 1) / static_cast<std::ptrdiff_t>(sizeof(void*)));
}

/// The slots of several operations, to be compared with the numbers from 0 up.
template <class... Operations>
std::vector<int> SlotsOf(Operations... operations)
{
    return {SlotOf(operations)...};
}

/// The form of an overloaded pair that edits its object: MutableForm(&IVXCodecPreset::AspectPreset).
template <class Class, class Result, class... Arguments>
constexpr auto MutableForm(Result (Class::*operation)(Arguments...))
{
    return operation;
}

/// The form of an overloaded pair that only reads its object.
template <class Class, class Result, class... Arguments>
constexpr auto ConstForm(Result (Class::*operation)(Arguments...) const)
{
    return operation;
}

/// The numbers from 0 to count - 1: what SlotsOf answers for a whole interface in its order.
inline std::vector<int> EverySlot(std::size_t count)
{
    std::vector<int> slots(count);
    for (std::size_t i = 0; i < count; ++i)
        slots[i] = static_cast<int>(i);
    return slots;
}

} // namespace Vexlor
