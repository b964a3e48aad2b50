#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor::Tool
{

/// One thing that a user can ask for by name.
struct Candidate
{
    std::string shown;              ///< how messages name it
    std::vector<std::string> names; ///< what it answers to, the most exact first; as many for every candidate
};

/// The one of the names that comes nearest to the text by the letters to change; empty where all of them are
/// far from it.
std::string NearestName(const std::vector<std::string>& names, std::string_view text);

/// Position of the one candidate that the text means. A whole name comes before a part of one, a name of the
/// right case before others, and an exact kind of name before a looser one.
///
/// Where none or several are meant it throws Failure: the origin, what kind of thing was asked for, and the
/// nearest names or all that are meant.
std::size_t FindByName(const std::vector<Candidate>& candidates, std::string_view text,
                       const std::string& kind, const std::string& origin);

/// The same of whole names alone, without an origin in front: what is to be changed is not guessed.
std::size_t FindByWholeName(const std::vector<Candidate>& candidates, std::string_view text,
                            const std::string& kind);

} // namespace Vexlor::Tool
