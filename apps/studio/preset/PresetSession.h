#pragma once

#include "CodecEntries.h"

#include <QString>

#include <functional>
#include <memory>

namespace Vexlor::Studio
{

class StudioDocument;

/// The format preset that the pane shows, and the way to change it.
class PresetSession
{
public:
    explicit PresetSession(StudioDocument& document) : m_document(document) {}

    /// Shows that preset from now on; an empty handle for none.
    void Show(std::shared_ptr<IVXFormatPreset> preset) { m_preset = std::move(preset); }
    /// The preset that is shown; empty for none.
    const std::shared_ptr<IVXFormatPreset>& Preset() const { return m_preset; }
    /// True when another preset of its category has that name.
    bool IsNameTaken(const QString& name) const;
    /// Changes it as StudioDocument::EditPreset does; nothing where none is shown.
    void Edit(const QString& what, const std::function<void(IVXFormatPreset&)>& change, int run = 0);

private:
    StudioDocument& m_document;
    std::shared_ptr<IVXFormatPreset> m_preset;
};

/// The codec preset of a stream whose page is open, and the way to change it.
///
/// Its handles do not outlive a change of the format preset, so it is found anew by its number.
class CodecSession
{
public:
    CodecSession(PresetSession& session, const StreamFamily& family) : m_session(session), m_family(family) {}

    /// Opens the page of the codec preset of that number; -1 for none.
    void Open(int index) { m_index = index; }
    /// Number of the codec preset whose page is open.
    int Index() const { return m_index; }
    /// The codec preset; empty where there is none of that number.
    std::shared_ptr<IVXCodecPreset> Codec() const;
    /// Changes the codec preset as a step; nothing where there is none.
    void Edit(const QString& what, const std::function<void(IVXCodecPreset&)>& change, int run = 0);

    /// The format preset that the codec preset is of.
    PresetSession& Whole() const { return m_session; }
    const StreamFamily& Family() const { return m_family; }

private:
    PresetSession& m_session;
    const StreamFamily& m_family;
    int m_index = -1;
};

} // namespace Vexlor::Studio
