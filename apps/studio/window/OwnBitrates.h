#pragma once

#include <QCoreApplication>

namespace Vexlor::Studio
{

class StudioDocument;

/// Bitrates of the user's own, which documents have no place for.
class OwnBitrates
{
    Q_DECLARE_TR_FUNCTIONS(Vexlor::Studio::OwnBitrates)

public:
    /// What is to be told of those that saving the document leaves out; empty where it leaves out nothing.
    static QString NoteOf(const StudioDocument& document);
};

} // namespace Vexlor::Studio
