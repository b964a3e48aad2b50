#pragma once

#include <QString>

#include <vector>

namespace Vexlor
{
struct VXMediaFile;
} // namespace Vexlor

namespace Vexlor::Studio
{

struct Outcome;

/// A line of the table that sets a source beside its output.
struct OutcomeRow
{
    bool isHeading = false; ///< then it has a name and nothing else
    QString name = {};
    QString source = {};
    QString output = {};
    QString why = {};

    /// Whether the output has another value than the source.
    bool IsChanged() const { return !output.isEmpty() && source != output; }
    bool operator==(const OutcomeRow&) const = default;
};

/// What is known of a source and, where there is one, of its outcome; values that neither has are left out.
std::vector<OutcomeRow> OutcomeRowsOf(const VXMediaFile& media, const Outcome* outcome);

} // namespace Vexlor::Studio
