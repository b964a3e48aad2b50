#pragma once

#include "FieldManners.h"
#include "PresetSession.h"

#include <QWidget>

class QStackedWidget;
class QTabWidget;

namespace Vexlor::Studio
{

class PresetHeader;
class StreamPage;

/// The format preset that is picked in the tree, to be looked at and changed. Every change is a step of the
/// document that can be taken back.
class PresetPane final : public QWidget
{
    Q_OBJECT

public:
    explicit PresetPane(StudioDocument& document, QWidget* parent = nullptr);
    ~PresetPane() override;
    PresetPane(const PresetPane&) = delete;
    PresetPane& operator=(const PresetPane&) = delete;

    /// Shows that preset; an empty handle shows what to do.
    void ShowPreset(std::shared_ptr<IVXFormatPreset> preset);

private:
    QWidget* NewEmptyState();
    QWidget* NewEditor();
    void Refresh();
    void ShowTabOfUse();

    PresetSession m_session;
    FieldManners m_manners;
    QStackedWidget* m_stack;
    PresetHeader* m_header;
    QTabWidget* m_tabs;
    StreamPage* m_video;
    StreamPage* m_audio;
};

} // namespace Vexlor::Studio
