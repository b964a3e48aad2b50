#pragma once

#include <vector>

namespace Vexlor
{

/// One case: for every factor the index of its value.
using PairwiseCase = std::vector<int>;

/// Cases in which any two values of any two factors meet at least once; each factor is told by its number of
/// values. Always the same ones for the same counts. There are no cases when a factor has no value.
///
/// Few faults of a combination need three choices at once, and the full product of a video codec's lists has
/// a hundred thousand cases where these are some hundreds.
std::vector<PairwiseCase> PairwiseCases(const std::vector<int>& counts);

} // namespace Vexlor
