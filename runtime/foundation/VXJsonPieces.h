#pragma once

#include <cstddef>

namespace Vexlor
{

/// Memory for built values. A tree of presets becomes hundreds of thousands of them, which live and die
/// together: pieces are cut one behind the other from larger blocks, and a block goes back to the heap with
/// the last of its pieces, on whichever thread that is. A piece that outlives the others holds its block, a
/// few kilobytes. Throws std::bad_alloc.
void* TakeJsonPiece(std::size_t bytes);
void GiveJsonPiece(void* piece) noexcept;

/// The same for containers and shared values.
template <class Type>
struct JsonPieceAllocator
{
    using value_type = Type;

    JsonPieceAllocator() = default;
    template <class Other>
    explicit(false) JsonPieceAllocator(const JsonPieceAllocator<Other>&)
    {
    }

    Type* allocate(std::size_t count)
    {
        static_assert(alignof(Type) <= alignof(std::size_t));
        return static_cast<Type*>(TakeJsonPiece(count * sizeof(Type)));
    }
    void deallocate(Type* piece, std::size_t /*count*/) noexcept { GiveJsonPiece(piece); }

    friend bool operator==(JsonPieceAllocator, JsonPieceAllocator) { return true; }
};

} // namespace Vexlor
