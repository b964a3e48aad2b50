#pragma once

#include <stdexcept>

namespace Vexlor::Tool
{

/// What could not be done: one line that names the file, or the thing that was asked for, and the reason.
class Failure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What the command line itself asks for wrongly.
class WrongUsage : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// An answer that is bad news: printed as any other, while the exit code tells of failure.
class BadAnswer : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace Vexlor::Tool
