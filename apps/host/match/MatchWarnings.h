#pragma once

#include "runtime/mediacodecs/VXLevels.h"

#include <string>
#include <vector>

namespace Vexlor::Tool
{

struct MediaMatch;

/// What a user should know of an output before it is made.
enum class MatchWarningKind : int
{
    NoFile,             ///< what is left of the source makes none of that container
    NoEncoder,          ///< the codec cannot be encoded here
    LevelTooLow,        ///< for the picture, the frame rate or the bitrate
    BitrateAboveSource, ///< the file grows, and nothing becomes better
    Enlarged,           ///< the picture
    ShapeChanged,       ///< by bounds of width and height, each on its own
};

/// One way to make a level high enough, in words.
struct MatchRemedy
{
    VXLevelRemedy remedy;
    std::string text; ///< "raise the level to 4.1"
};

/// One warning.
struct MatchWarning
{
    MatchWarningKind kind;
    bool isAudio = false;
    std::string text;
    std::vector<MatchRemedy> remedies = {}; ///< the least loss first; of a level alone
};

/// What is to be warned of, the gravest first.
std::vector<MatchWarning> WarningsOf(const MediaMatch& match);

/// The kind's name for programs: "levelTooLow".
const char* WarningName(MatchWarningKind kind);
/// The remedy's name for programs: "raiseLevel".
const char* RemedyName(VXLevelRemedyKind kind);

} // namespace Vexlor::Tool
