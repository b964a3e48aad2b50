#include "runtime/foundation/VXJsonSpareMembers.h"

#include <array>

namespace Vexlor
{

namespace
{

constexpr std::size_t kMost = 16;
constexpr std::size_t kMostRoom = 20000; // of each; longer texts are rare, and soon made

// What a thread has. Plain variables may be used even while the thread ends. Few of them: where the library
// is loaded by a program that runs, they lie in the little room that the loader holds free for such.
struct Spare
{
    std::array<VXJsonManyMembers*, kMost> members{};
    std::size_t count = 0;
    bool isEnding = false;
};

[[gnu::tls_model("initial-exec")]] constinit thread_local Spare t_spare;

struct AtThreadEnd
{
    AtThreadEnd() = default;
    AtThreadEnd(const AtThreadEnd&) = delete;
    AtThreadEnd& operator=(const AtThreadEnd&) = delete;
    ~AtThreadEnd()
    {
        t_spare.isEnding = true;
        while (t_spare.count > 0)
            delete t_spare.members[--t_spare.count];
    }
};

} // namespace

VXJsonManyMembers* TakeJsonMembers()
{
    return t_spare.count > 0 ? t_spare.members[--t_spare.count] : new VXJsonManyMembers;
}

void GiveJsonMembers(VXJsonManyMembers* members) noexcept
{
    members->Clear();
    if (t_spare.isEnding || t_spare.count == kMost || members->Room() > kMostRoom)
    {
        delete members;
        return;
    }
    thread_local const AtThreadEnd s_watch;
    t_spare.members[t_spare.count++] = members;
}

} // namespace Vexlor
