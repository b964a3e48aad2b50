#pragma once

#include "apps/host/Catalogue.h"

#include "runtime/mediacodecs/VXMediaFile.h"

#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{
class IVXFormatParameter;
}

namespace Vexlor::Tool
{

/// How well a source goes into a preset, the best first.
enum class PresetFit : int
{
    Untouched,  ///< codecs, picture and sound stay what they are
    Changed,    ///< something becomes another
    Impossible, ///< nothing comes out, or it cannot be made here
};

/// What one preset makes of a source.
struct PresetMatch
{
    const CatalogueEntry* entry = nullptr;
    PresetFit fit = PresetFit::Untouched;
    /// What becomes another, or why it is impossible, one thing a text.
    std::vector<std::string> texts;
    /// How much is lost: 0 for nothing, 1 for a stream; what cannot be seen or heard counts little.
    double loss = 0;
    std::shared_ptr<const IVXFormatParameter> output;
};

/// What every preset makes of a source: the best fit first, of equal ones the least loss, of equal ones the
/// first in the catalogue, which must outlive the answer.
std::vector<PresetMatch> MatchCatalogue(const VXMediaFile& media, const Catalogue& catalogue);

/// The fit's name: "untouched".
const char* FitName(PresetFit fit);

} // namespace Vexlor::Tool
