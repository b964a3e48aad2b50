#pragma once

#include "DocumentContent.h"
#include "PresetTree.h"
#include "RecentPresets.h"

#include <QObject>
#include <QString>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>

namespace Vexlor::Studio
{

/// The document that is open: its tree, its file, and every change as something that can be taken back.
class StudioDocument : public QObject
{
    Q_OBJECT

public:
    /// The built-in catalogue, without a file.
    explicit StudioDocument(QObject* parent = nullptr);
    ~StudioDocument() override;

    /// The tree; never empty.
    const std::shared_ptr<IVXFormatNode>& Root() const { return m_tree.Root(); }
    /// The same with word of each change of its shape.
    PresetTree& Tree() { return m_tree; }
    /// Every change as a step.
    QUndoStack& Undo() { return m_undo; }

    /// The file; empty where there is none yet.
    const QString& Path() const { return m_path; }
    /// The file's name, or one for a document without a file.
    QString Title() const;
    /// True when there is something to lose. Recently used presets are kept beside the document.
    bool IsModified() const;

    /// Takes up another document; nothing can be undone then.
    void SetContent(DocumentContent content, const QString& path);
    /// Takes up what was found after a crash: a document of that file with changes that are not in it.
    void SetRecovered(DocumentContent content, const QString& path, std::string textOfFile);

    /// True where the preset is as its text in the file is.
    bool IsAsRead(const IVXFormatPreset& preset) const { return m_asRead.contains(&preset); }
    /// The tree as it is to be written.
    PlannedNode Plan() const;
    /// What it is written over.
    const std::shared_ptr<const DocumentBasis>& Basis() const { return m_basis; }
    /// What the file is expected to hold.
    const std::string& TextOfFile() const { return m_textOfFile ? *m_textOfFile : m_basis->text; }
    /// Says that the plan was written to that file, as that text.
    void SetSaved(const QString& path, std::shared_ptr<const DocumentBasis> basis);

    /// Changes a format preset as one step that can be undone; what names it in the Edit menu. Steps of one
    /// preset with the same nonzero run that follow one another are one: typing into a field, dragging a
    /// slider. Nothing happens where the change leaves the preset as it was. A recently used preset becomes
    /// one of the user's own with the same step, for it might go otherwise.
    void EditPreset(const std::shared_ptr<IVXFormatPreset>& preset, const QString& what,
                    const std::function<void(IVXFormatPreset&)>& change, int run = 0);
    /// Changes what a category or a preset is called and how it is shown, in the same way.
    void EditLook(const TreeItem& item, const QString& what, const std::function<void(ItemLook&)>& change,
                  int run = 0);
    /// Has the preset among the recently used ones, as it was when it was used.
    void NoteUsed(const IVXFormatPreset& preset, const IVXFormatPreset& asItWas);

signals:
    /// After a recently used preset became one of the user's own, for it was changed.
    void MadeOwn(const std::shared_ptr<Vexlor::IVXFormatPreset>& preset);
    /// After another document was taken up, but for one that was found after a crash.
    void Replaced();
    /// After each change of a format preset's content, undo and redo included. The codec presets inside are
    /// then other objects than before.
    void PresetChanged(const std::shared_ptr<Vexlor::IVXFormatPreset>& preset);
    /// After the file or whether there is something to lose has changed.
    void StateChanged();

private:
    void TakeUp(DocumentContent content, const QString& path);
    int RecentIndexOf(const TreeItem& item) const;
    void Push(std::unique_ptr<QUndoCommand> edit, const QString& what, const TreeItem& item);
    void TellOfLook(const TreeItem& item);
    void TellOfChange(const std::shared_ptr<IVXFormatPreset>& preset);

    PresetTree m_tree;
    RecentPresets m_recent{m_tree};
    QUndoStack m_undo;
    QString m_path;
    std::shared_ptr<const DocumentBasis> m_basis;
    std::unordered_set<const void*> m_asRead; // presets whose text in the basis is still theirs
    std::optional<std::string> m_textOfFile;  // where it is not what the tree came from
};

} // namespace Vexlor::Studio
