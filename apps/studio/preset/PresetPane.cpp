#include "PresetPane.h"

#include "ItemHeader.h"
#include "StreamPage.h"

#include "apps/studio/document/StudioDocument.h"

#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

namespace Vexlor::Studio
{

namespace
{

QLabel* NewHint(const QString& text)
{
    auto* label = new QLabel(text);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setMargin(label->fontMetrics().height());
    return label;
}

} // namespace

PresetPane::PresetPane(StudioDocument& document, QWidget* parent)
    : QWidget(parent), m_session(document), m_stack(new QStackedWidget(this)),
      m_header(new ItemHeader(m_session, m_manners)), m_tabs(new QTabWidget),
      m_hint(NewHint(tr("Pick a preset of this category to see what it makes of a file."))),
      m_video(new StreamPage(m_session, Tool::StreamKind::Video, m_manners)),
      m_audio(new StreamPage(m_session, Tool::StreamKind::Audio, m_manners))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_stack);
    m_stack->addWidget(NewEmptyState());
    m_stack->addWidget(NewEditor());
    connect(&document, &StudioDocument::PresetChanged, this,
            [this](const std::shared_ptr<IVXFormatPreset>& preset)
            {
                if (preset == m_session.Preset())
                    Refresh();
            });
    connect(&document.Tree(), &PresetTree::LookChanged, this,
            [this](const TreeItem& item)
            {
                if (item.category && item == m_session.Item())
                    m_header->Refresh();
            });
}

// A field that loses the focus as it goes still asks the session.
PresetPane::~PresetPane() { delete m_stack; }

QWidget* PresetPane::NewEmptyState()
{
    auto* text = NewHint(tr("Pick a preset in the tree to see what it makes of a file, and to change it."));
    text->setObjectName(QStringLiteral("empty"));
    return text;
}

QWidget* PresetPane::NewEditor()
{
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->addWidget(m_header);
    layout->addWidget(m_tabs, 1);
    layout->addWidget(m_hint, 1);
    m_tabs->addTab(m_video, tr("Vide&o"));
    m_tabs->addTab(m_audio, tr("&Audio"));
    m_tabs->setObjectName(QStringLiteral("streams"));
    m_tabs->setAccessibleName(tr("Codecs"));

    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    return scroll;
}

void PresetPane::ShowItem(const TreeItem& item)
{
    const bool isAnother = !(item == m_session.Item());
    m_session.Show(item);
    m_stack->setCurrentIndex(item ? 1 : 0);
    if (!item || !isAnother)
        return;
    m_header->Refresh();
    m_tabs->setVisible(item.IsPreset());
    m_hint->setVisible(!item.IsPreset());
    if (!item.IsPreset())
        return;
    m_video->Open();
    m_audio->Open();
    ShowTabOfUse();
}

void PresetPane::Refresh()
{
    m_header->Refresh();
    m_video->Refresh();
    m_audio->Refresh();
}

// A preset of sound alone opens with its sound.
void PresetPane::ShowTabOfUse()
{
    const auto* other = m_tabs->currentWidget() == m_video ? m_audio : m_video;
    const auto* open = m_tabs->currentWidget() == m_video ? m_video : m_audio;
    if (!open->IsOfUse() && other->IsOfUse())
        m_tabs->setCurrentIndex(1 - m_tabs->currentIndex());
}

} // namespace Vexlor::Studio
