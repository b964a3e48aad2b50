#pragma once

namespace Vexlor::Tool
{

/// While it is there, Ctrl-C and the like are noted and end nothing by themselves.
class Interruption final
{
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    /// True when one has come since.
    static bool HasCome();
};

} // namespace Vexlor::Tool
