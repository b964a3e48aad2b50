#pragma once

#include "CodecEntries.h"
#include "apps/studio/document/TreeItem.h"

#include <QString>

#include <functional>
#include <memory>

namespace Vexlor::Studio
{

class StudioDocument;

/// The format preset or the category that the pane shows, and the way to change it.
class PresetSession
{
public:
    explicit PresetSession(StudioDocument& document) : m_document(document) {}

    /// Shows that from now on; an empty item for nothing.
    void Show(TreeItem item) { m_item = std::move(item); }
    /// The category or the preset that is shown; empty for none.
    const TreeItem& Item() const { return m_item; }
    /// The preset that is shown; empty for none.
    const std::shared_ptr<IVXFormatPreset>& Preset() const { return m_item.preset; }
    /// True when another item of its kind in its category has that name.
    bool IsNameTaken(const QString& name) const;
    /// Changes what it is called and how it is shown; nothing where none is shown.
    void EditLook(const QString& what, const std::function<void(ItemLook&)>& change, int run = 0);
    /// Changes the preset as StudioDocument::EditPreset does; nothing where none is shown.
    void Edit(const QString& what, const std::function<void(IVXFormatPreset&)>& change, int run = 0);

private:
    StudioDocument& m_document;
    TreeItem m_item;
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
