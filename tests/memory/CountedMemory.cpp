#include "tests/memory/CountedMemory.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

namespace
{

// Before each block lies a header that keeps the alignment.
constexpr std::size_t kHeader = alignof(std::max_align_t);
constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();

std::size_t theBytesInUse = 0;
std::size_t theMostBytesInUse = 0;
std::size_t theAllocationsLeft = kNoLimit;
Vexlor::Refusal theRefusal = Vexlor::Refusal::AllThatFollow;
bool oneWasRefused = false;

bool IsGranted()
{
    if (theAllocationsLeft == kNoLimit)
        return true;
    if (theAllocationsLeft > 0)
    {
        --theAllocationsLeft;
        return true;
    }
    oneWasRefused = true;
    if (theRefusal == Vexlor::Refusal::One)
        theAllocationsLeft = kNoLimit;
    return false;
}

// What a caller gets of a block, behind the header that ends in the size.
void* Counted(std::byte* block, std::size_t header, std::size_t size)
{
    std::memcpy(block + header - sizeof size, &size, sizeof size);
    theBytesInUse += size;
    theMostBytesInUse = std::max(theMostBytesInUse, theBytesInUse);
    return block + header;
}

void* Discounted(void* memory, std::size_t header)
{
    std::size_t size = 0;
    std::memcpy(&size, static_cast<std::byte*>(memory) - sizeof size, sizeof size);
    theBytesInUse -= size;
    return static_cast<std::byte*>(memory) - header;
}

} // namespace

// Every form that is used is replaced, so that none is freed by another; not inlined, or the compiler takes
// free() for the wrong partner of what it sees as operator new.
#define VX_NOT_INLINED __attribute__((noinline))

VX_NOT_INLINED void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    auto* block = IsGranted() ? static_cast<std::byte*>(std::malloc(size + kHeader)) : nullptr;
    return block ? Counted(block, kHeader, size) : nullptr;
}

VX_NOT_INLINED void* operator new(std::size_t size, std::align_val_t alignment)
{
    const auto header = static_cast<std::size_t>(alignment);
    const std::size_t whole = (size + 2 * header - 1) / header * header;
    auto* block = IsGranted() ? static_cast<std::byte*>(std::aligned_alloc(header, whole)) : nullptr;
    if (!block)
        throw std::bad_alloc();
    return Counted(block, header, size);
}

VX_NOT_INLINED void* operator new(std::size_t size)
{
    if (void* memory = operator new(size, std::nothrow))
        return memory;
    throw std::bad_alloc();
}

void* operator new[](std::size_t size) { return operator new(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return operator new(size, std::nothrow);
}

VX_NOT_INLINED void operator delete(void* memory) noexcept
{
    if (memory)
        std::free(Discounted(memory, kHeader));
}

VX_NOT_INLINED void operator delete(void* memory, std::align_val_t alignment) noexcept
{
    if (memory)
        std::free(Discounted(memory, static_cast<std::size_t>(alignment)));
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
void operator delete[](void* memory) noexcept { operator delete(memory); }
void operator delete[](void* memory, std::size_t) noexcept { operator delete(memory); }

namespace Vexlor
{

std::size_t BytesInUse() { return theBytesInUse; }

std::size_t MostBytesInUse() { return theMostBytesInUse; }

void RestartMostBytesInUse() { theMostBytesInUse = theBytesInUse; }

AllocationLimit::AllocationLimit(std::size_t granted, Refusal refusal)
{
    oneWasRefused = false;
    theRefusal = refusal;
    theAllocationsLeft = granted;
}

AllocationLimit::~AllocationLimit() { theAllocationsLeft = kNoLimit; }

bool AllocationLimit::WasReached() const { return oneWasRefused; }

} // namespace Vexlor
