#pragma once

#include "apps/host/Failure.h"

#include <QString>

#include <memory>
#include <vector>

namespace Vexlor
{
class IVXFormatPreset;
}

/// The presets that were used last, kept in a file of the user's data folder: for each of the documents that
/// were used last, the newest first, its presets, the newest first. All operations throw Tool::Failure where
/// the file cannot be read or written, or holds something else; it then stays as it is. None waits long.
namespace Vexlor::Studio::RecentStore
{

/// Another program is writing the file: later it may be free.
class Busy : public Tool::Failure
{
public:
    using Failure::Failure;
};

/// So many documents are kept.
inline constexpr int kMostDocuments = 20;

/// The file.
QString Path();
/// What is there while a program writes it.
QString LockPath();
/// The presets of the document of that path, an empty one standing for the built-in presets.
std::vector<std::shared_ptr<IVXFormatPreset>> PresetsOf(const QString& document);
/// Puts the preset in front of the others of that document, and that document in front of the others.
void Note(const QString& document, const IVXFormatPreset& preset);
/// Forgets the presets of that document.
void Forget(const QString& document);

} // namespace Vexlor::Studio::RecentStore
