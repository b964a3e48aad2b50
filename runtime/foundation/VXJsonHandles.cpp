#include "runtime/foundation/VXJsonHandles.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Vexlor
{

// The first call on a thread empties a list in a loop; those that it runs into only add to that list.
void LetGoOf(JsonHandles children)
{
    thread_local JsonHandles* waiting = nullptr;
    if (waiting)
    {
        std::ranges::move(children, std::back_inserter(*waiting));
        return;
    }
    waiting = &children;
    while (!children.empty())
    {
        const JsonHandle last = std::move(children.back());
        children.pop_back();
    }
    waiting = nullptr;
}

} // namespace Vexlor
