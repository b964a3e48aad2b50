#pragma once

#include <set>
#include <string>

namespace Vexlor
{

class IVXCodecParameter;
class IVXCodecPreset;

/// The profiles and levels that a codec's preset offers. Each may give way to another one beside choices that
/// it cannot hold, but one that always does is offered in vain.
class OfferedLabels
{
public:
    explicit OfferedLabels(const IVXCodecPreset& preset);

    /// Takes off the list what an encoder of that stream is told as it was chosen.
    void TakeOffKept(const IVXCodecParameter& stream);
    /// "level 1b": what is still on the list.
    const std::set<std::string>& Left() const { return m_left; }

private:
    std::set<std::string> m_left;
};

} // namespace Vexlor
