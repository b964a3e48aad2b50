#include "runtime/foundation/VXJsonPieces.h"

#include <atomic>
#include <cstdint>
#include <new>

namespace Vexlor
{

namespace
{

constexpr std::size_t kBlockSize = std::size_t{1} << 16;
constexpr std::size_t kUnit = 2 * sizeof(std::size_t);

// What a block begins with; its pieces follow. Blocks lie at multiples of their size, so that a piece's
// address tells where its block is.
struct alignas(64) Block
{
    // As long as pieces are cut from it, a block counts all that it could ever have: so only giving back is
    // an atomic operation.
    static constexpr std::size_t kMost = kBlockSize;

    std::atomic<std::size_t> count = kMost;
    std::size_t used = sizeof(Block);
    std::size_t pieces = 0;
};

void Release(Block* block, std::size_t count) noexcept
{
    if (block->count.fetch_sub(count, std::memory_order_acq_rel) != count)
        return;
    block->~Block();
    ::operator delete(block, std::align_val_t(kBlockSize));
}

Block* NewBlock(std::size_t size) { return ::new (::operator new(size, std::align_val_t(kBlockSize))) Block; }

void* Cut(Block* block, std::size_t size)
{
    auto* const piece = reinterpret_cast<char*>(block) + block->used;
    block->used += size;
    ++block->pieces;
    return piece;
}

// A piece too large to share a block has one of its own.
void* CutAlone(std::size_t size)
{
    Block* const block = NewBlock(sizeof(Block) + size);
    void* const piece = Cut(block, size);
    block->count.store(1, std::memory_order_relaxed);
    return piece;
}

// What a thread has of the blocks. Plain variables may be used even while the thread ends.
struct Pieces
{
    Block* current = nullptr; // the block that pieces are cut from
    Block* emptied = nullptr; // the block that pieces were last given back to,
    std::size_t given = 0;    // and how many of them its count does not know of yet
    bool isEnding = false;
};

// Asked for with each value: without a call where the compiler can.
[[gnu::tls_model("initial-exec")]] thread_local Pieces t_pieces;

void Retire() noexcept
{
    if (t_pieces.current)
        Release(t_pieces.current, Block::kMost - t_pieces.current->pieces);
    t_pieces.current = nullptr;
}

void CountGiven() noexcept
{
    if (t_pieces.emptied)
        Release(t_pieces.emptied, t_pieces.given);
    t_pieces.emptied = nullptr;
    t_pieces.given = 0;
}

struct AtThreadEnd
{
    AtThreadEnd() = default;
    AtThreadEnd(const AtThreadEnd&) = delete;
    AtThreadEnd& operator=(const AtThreadEnd&) = delete;
    ~AtThreadEnd()
    {
        CountGiven();
        Retire();
        t_pieces.isEnding = true;
    }
};

void WatchThreadEnd() { thread_local const AtThreadEnd s_watch; }

void StartBlock()
{
    WatchThreadEnd();
    Block* const block = NewBlock(kBlockSize);
    Retire();
    t_pieces.current = block;
}

void* TakeShared(std::size_t size)
{
    constexpr std::size_t kLargest = kBlockSize / 8;
    if (size > kLargest || t_pieces.isEnding)
        return CutAlone(size);
    if (!t_pieces.current || kBlockSize - t_pieces.current->used < size)
        StartBlock();
    return Cut(t_pieces.current, size);
}

// Values die as they lived, one beside the other: a block's count hears of many at once, but of its last
// piece immediately.
void GiveShared(Block* block) noexcept
{
    if (t_pieces.isEnding)
        return Release(block, 1);
    if (block != t_pieces.emptied)
    {
        WatchThreadEnd();
        CountGiven();
        t_pieces.emptied = block;
    }
    if (++t_pieces.given == block->count.load(std::memory_order_relaxed))
        CountGiven();
}

// The sanitizer sees an access to a piece that was given back only where each is a block of the heap's own.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kAreShared = false;
#elif defined(__has_feature)
constexpr bool kAreShared = !__has_feature(address_sanitizer);
#else
constexpr bool kAreShared = true;
#endif

} // namespace

void* TakeJsonPiece(std::size_t bytes)
{
    return kAreShared ? TakeShared((bytes + kUnit - 1) / kUnit * kUnit) : ::operator new(bytes);
}

void GiveJsonPiece(void* piece) noexcept
{
    if (!kAreShared)
        return ::operator delete(piece);
    const auto offset = reinterpret_cast<std::uintptr_t>(piece) % kBlockSize;
    GiveShared(reinterpret_cast<Block*>(static_cast<char*>(piece) - offset));
}

} // namespace Vexlor
