#include "NameSearch.h"

#include "Failure.h"
#include "Text.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace Vexlor::Tool
{

namespace
{

using Positions = std::vector<std::size_t>;

constexpr std::size_t kNearest = 3;
constexpr std::size_t kMostListed = 10;
constexpr std::size_t kLongestCompared = 200; // a typing error needs no more of a name

template <typename Matches>
Positions Where(const std::vector<Candidate>& candidates, Matches matches)
{
    Positions positions;
    for (std::size_t i = 0; i < candidates.size(); ++i)
        if (matches(candidates[i]))
            positions.push_back(i);
    return positions;
}

std::size_t KindsOf(const std::vector<Candidate>& candidates)
{
    return candidates.empty() ? 0 : candidates.front().names.size();
}

Positions WithWholeName(const std::vector<Candidate>& candidates, std::string_view text,
                        std::string (*form)(std::string_view))
{
    Positions found;
    for (std::size_t kind = 0; found.empty() && kind < KindsOf(candidates); ++kind)
        found = Where(candidates,
                      [&](const Candidate& candidate) { return form(candidate.names[kind]) == form(text); });
    return found;
}

// The loosest kind of name first: a part of what the thing itself is called says more than one of its path.
Positions WithPartOfName(const std::vector<Candidate>& candidates, std::string_view text)
{
    const auto part = Folded(text);
    Positions found;
    for (auto kind = KindsOf(candidates); found.empty() && kind > 0; --kind)
        found = Where(candidates, [&](const Candidate& candidate)
                      { return Folded(candidate.names[kind - 1]).find(part) != std::string::npos; });
    return found;
}

Positions WithWholeName(const std::vector<Candidate>& candidates, std::string_view text)
{
    auto found = WithWholeName(candidates, text, [](std::string_view name) { return std::string(name); });
    return found.empty() ? WithWholeName(candidates, text, Folded) : found;
}

/// The fewest characters to insert, remove or replace to make one text of the other.
std::size_t EditDistance(std::string_view from, std::string_view to)
{
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i)
    {
        auto diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < to.size(); ++j)
        {
            const auto replaced = diagonal + (from[i] == to[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

std::size_t DistanceOf(const Candidate& candidate, const std::string& folded)
{
    auto distance = folded.size() + kLongestCompared;
    for (const auto& name : candidate.names)
        distance = std::min(distance, EditDistance(folded, Folded(name).substr(0, kLongestCompared)));
    return distance;
}

Positions Nearest(const std::vector<Candidate>& candidates, std::string_view text)
{
    const auto folded = Folded(text.substr(0, kLongestCompared));
    std::vector<std::pair<std::size_t, std::size_t>> distances;
    for (std::size_t i = 0; i < candidates.size(); ++i)
        distances.emplace_back(DistanceOf(candidates[i], folded), i);
    std::ranges::sort(distances);
    distances.resize(std::min(distances.size(), kNearest));
    Positions positions;
    for (const auto& [distance, position] : distances)
        positions.push_back(position);
    return positions;
}

std::string Listed(const std::vector<Candidate>& candidates, const Positions& positions)
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < std::min(positions.size(), kMostListed); ++i)
        names.push_back(Quoted(candidates[positions[i]].shown));
    const auto rest = positions.size() - names.size();
    return Joined(names, ", ") + (rest == 0 ? "" : " and " + std::to_string(rest) + " more");
}

std::size_t OnlyOne(const std::vector<Candidate>& candidates, const Positions& found, std::string_view text,
                    const std::string& begin, const std::string& kind)
{
    if (found.size() == 1)
        return found.front();
    if (!found.empty())
        throw Failure(begin + Quoted(text) + " is more than one " + kind + ": " + Listed(candidates, found));
    const auto nearest = Listed(candidates, Nearest(candidates, text));
    throw Failure(begin + "no " + kind + ' ' + Quoted(text) +
                  (nearest.empty() ? ", nor any other" : "; nearest: " + nearest));
}

} // namespace

std::string NearestName(const std::vector<std::string>& names, std::string_view text)
{
    const auto folded = Folded(text.substr(0, kLongestCompared));
    std::string nearest;
    auto least = folded.size() / 2 + 1; // half of it may be wrong
    for (const auto& name : names)
        if (const auto distance = EditDistance(folded, Folded(name)); distance < least)
        {
            least = distance;
            nearest = name;
        }
    return nearest;
}

std::size_t FindByName(const std::vector<Candidate>& candidates, std::string_view text,
                       const std::string& kind, const std::string& origin)
{
    const auto found = WithWholeName(candidates, text);
    return OnlyOne(candidates, found.empty() ? WithPartOfName(candidates, text) : found, text, origin + ": ",
                   kind);
}

std::size_t FindByWholeName(const std::vector<Candidate>& candidates, std::string_view text,
                            const std::string& kind)
{
    return OnlyOne(candidates, WithWholeName(candidates, text), text, {}, kind);
}

} // namespace Vexlor::Tool
