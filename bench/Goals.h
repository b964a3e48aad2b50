#pragma once

#include <iosfwd>

namespace Vexlor::Bench
{

class Results;

/// Prints what was reached beside each goal, and whether that is enough.
void PrintGoals(std::ostream& out, const Results& results);

} // namespace Vexlor::Bench
