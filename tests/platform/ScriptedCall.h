#pragma once

#include "IVXRational.h"

#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Vexlor
{

/// "30000/1001"; "none" for an empty handle.
std::string Text(const std::shared_ptr<const IVXRational>& rational);

/// One argument of a call: a text in quotes, a rational as above, anything else as a stream writes it.
template <class Argument>
void WriteArgument(std::ostream& stream, const Argument& argument)
{
    if constexpr (std::is_same_v<Argument, std::string>)
        stream << '"' << argument << '"';
    else if constexpr (std::is_convertible_v<Argument, std::shared_ptr<const IVXRational>>)
        stream << Text(argument);
    else
        stream << argument;
}

/// A call as text: `BestResolutionFor(1280, 720, "")`.
template <class... Arguments>
std::string CallText(std::string_view operation, const Arguments&... arguments)
{
    std::ostringstream stream;
    stream.exceptions(std::ios::badbit); // a stream keeps std::bad_alloc to itself otherwise
    stream << std::boolalpha << operation << '(';
    std::string_view gap;
    ((stream << std::exchange(gap, ", "), WriteArgument(stream, arguments)), ...);
    stream << ')';
    return stream.str();
}

} // namespace Vexlor
