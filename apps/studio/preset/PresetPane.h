#pragma once

#include "FieldManners.h"
#include "PresetSession.h"

#include <QWidget>

class QLabel;
class QStackedWidget;
class QTabWidget;

namespace Vexlor::Studio
{

class ItemHeader;
class StreamPage;

/// The format preset or the category that is picked in the tree, to be looked at and changed. Every change is
/// a step of the document that can be taken back.
class PresetPane final : public QWidget
{
    Q_OBJECT

public:
    explicit PresetPane(StudioDocument& document, QWidget* parent = nullptr);
    ~PresetPane() override;
    PresetPane(const PresetPane&) = delete;
    PresetPane& operator=(const PresetPane&) = delete;

    /// Shows that; an empty item shows what to do.
    void ShowItem(const TreeItem& item);

private:
    static QWidget* NewEmptyState();
    QWidget* NewEditor();
    void Refresh();
    void ShowTabOfUse();

    PresetSession m_session;
    FieldManners m_manners;
    QStackedWidget* m_stack;
    ItemHeader* m_header;
    QTabWidget* m_tabs;
    QLabel* m_hint;
    StreamPage* m_video;
    StreamPage* m_audio;
};

} // namespace Vexlor::Studio
