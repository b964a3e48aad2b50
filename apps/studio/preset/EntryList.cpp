#include "EntryList.h"

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

bool Holds(const QStringList& texts, int index) { return index >= 0 && index < texts.size(); }

} // namespace

void RemoveEntry(EntryList& list, int index)
{
    const auto texts = list.Texts();
    const int current = list.Current();
    list.Remove(index);
    // A number that named nothing before names nothing now.
    if (!Holds(texts, current))
        return;
    const auto last = static_cast<int>(texts.size()) - 2;
    list.Choose(std::min(index < current ? current - 1 : current, last));
}

void MoveEntry(EntryList& list, int index, int by)
{
    const auto texts = list.Texts();
    const int other = index + by;
    if (!Holds(texts, index) || !Holds(texts, other))
        return;
    const int current = list.Current();
    list.Move(index, by > 0 ? other + 1 : other);
    if (current == index)
        list.Choose(other);
    else if (current == other)
        list.Choose(index);
}

} // namespace Vexlor::Studio
