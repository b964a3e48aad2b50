#pragma once

#include <QString>
#include <QStringList>

namespace Vexlor::Studio
{

struct Outcome;

/// What is to be warned of and what gives way, as rich text, with the ways out of it but for those that are
/// offered elsewhere; empty where all is well.
QString NoticesHtml(const Outcome& outcome, const QStringList& offered = {});

} // namespace Vexlor::Studio
