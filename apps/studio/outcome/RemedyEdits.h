#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace Vexlor
{
class IVXFormatPreset;
}

namespace Vexlor::Studio
{

struct Outcome;

/// A change of a preset that leads out of what is warned of.
struct RemedyEdit
{
    QString text; ///< "raise the level to 4.1", as the warning has it
    std::function<void(IVXFormatPreset&)> change;
};

/// The remedies of the outcome's warnings that help when the preset is changed by them, the least loss first.
std::vector<RemedyEdit> RemedyEditsOf(const Outcome& outcome, const IVXFormatPreset& preset);

} // namespace Vexlor::Studio
