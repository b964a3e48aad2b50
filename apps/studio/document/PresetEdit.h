#pragma once

#include <QUndoCommand>

#include <functional>
#include <memory>

namespace Vexlor
{
class IVXFormatPreset;
}

namespace Vexlor::Studio
{

/// A format preset as it was and as it is after a change, brought into the same object, so that handles to it
/// stay good.
class PresetEdit final : public QUndoCommand
{
public:
    using Preset = std::shared_ptr<IVXFormatPreset>;
    using Tell = std::function<void(const Preset& preset)>;

    /// Steps of one nonzero run become one; tell is called after each change of the preset.
    PresetEdit(Preset preset, Preset after, int run, Tell tell);

    /// True when the change leaves the preset as it is.
    bool IsIdle() const;

    int id() const override;
    bool mergeWith(const QUndoCommand* other) override;
    void undo() override;
    void redo() override;

private:
    void Become(const Preset& state) const;

    Preset m_preset;
    Preset m_before;
    Preset m_after;
    int m_run;
    Tell m_tell;
};

} // namespace Vexlor::Studio
