#pragma once

#include <QString>

namespace Vexlor::Studio
{

struct Outcome;

/// What is to be warned of and what gives way, with the ways out of it, as rich text; empty where all is
/// well.
QString NoticesHtml(const Outcome& outcome);

} // namespace Vexlor::Studio
