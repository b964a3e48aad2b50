#pragma once

#include <QObject>
#include <QUndoStack>

#include <functional>
#include <memory>

namespace Vexlor
{
class IVXFormatNode;
class IVXFormatPreset;
} // namespace Vexlor

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
    const std::shared_ptr<IVXFormatNode>& Root() const { return m_root; }
    /// Every change as a step.
    QUndoStack& Undo() { return m_undo; }

    /// Changes a format preset as one step that can be undone; what names it in the Edit menu. Steps of one
    /// preset with the same nonzero run that follow one another are one: typing into a field, dragging a
    /// slider. Nothing happens where the change leaves the preset as it was.
    void EditPreset(const std::shared_ptr<IVXFormatPreset>& preset, const QString& what,
                    const std::function<void(IVXFormatPreset&)>& change, int run = 0);

signals:
    /// After each change of a format preset's content, undo and redo included. The codec presets inside are
    /// then other objects than before.
    void PresetChanged(const std::shared_ptr<Vexlor::IVXFormatPreset>& preset);

private:
    std::shared_ptr<IVXFormatNode> m_root;
    QUndoStack m_undo;
};

} // namespace Vexlor::Studio
