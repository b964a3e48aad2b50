#pragma once

#include "fuzz/ChoiceReader.h"

#include <memory>

namespace Vexlor
{

class IVXFormatPreset;

/// A codec that the runtime knows, or any number.
int SomeCodec(ChoiceReader& choices);

/// A preset with a few codecs, any of their entries current, and any bounds; one of everything that its
/// container takes would cost a fuzzer most of its time.
std::shared_ptr<IVXFormatPreset> SomePreset(ChoiceReader& choices);

} // namespace Vexlor
