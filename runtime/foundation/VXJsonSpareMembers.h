#pragma once

#include "runtime/foundation/VXJsonManyMembers.h"

namespace Vexlor
{

/// Many members, of which there are none yet. Objects are built one like the other, and most are finished
/// soon: the room of those that are given back serves the next ones of the thread, which keeps a third of a
/// megabyte of it at most. Throws std::bad_alloc.
VXJsonManyMembers* TakeJsonMembers();
void GiveJsonMembers(VXJsonManyMembers* members) noexcept;

} // namespace Vexlor
