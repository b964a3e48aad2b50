#include "OutcomePane.h"

#include "ConvertPanel.h"
#include "OutcomeDrawings.h"
#include "OutcomeModel.h"
#include "OutcomeNotices.h"
#include "OutcomeView.h"
#include "RemedyButtons.h"
#include "SourceBar.h"
#include "apps/studio/DroppedFile.h"
#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/texts/ToolText.h"

#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"

#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QScrollArea>
#include <QStackedWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

namespace Vexlor::Studio
{

namespace
{

constexpr int kSoon = 20; // milliseconds, in which many changes are one

/// The first media file of what is dragged; empty where there is none. Everything else is the window's.
QString FileOf(const QMimeData& data)
{
    for (const auto& url : data.urls())
        if (url.isLocalFile() && KindOfDropped(url.toLocalFile()) == DroppedFile::Media)
            return url.toLocalFile();
    return {};
}

} // namespace

OutcomePane::OutcomePane(StudioDocument& document, QWidget* parent)
    : QWidget(parent), m_document(document), m_source(new SourceBar(this)), m_pages(new QStackedWidget(this)),
      m_empty(new QLabel(this)), m_scroll(new QScrollArea(this)), m_drawings(new OutcomeDrawings(this)),
      m_notices(new QLabel(this)), m_remedies(new RemedyButtons(this)), m_model(new OutcomeModel(this)),
      m_view(new OutcomeView(*m_model, this)), m_convert(new ConvertPanel(this)), m_loader(this)
{
    setObjectName(QStringLiteral("outcomePane"));
    setAcceptDrops(true);
    m_update.setSingleShot(true);
    m_update.setInterval(kSoon);
    Lay();
    Connect();
    Update();
}

OutcomePane::~OutcomePane() = default;

void OutcomePane::Lay()
{
    m_empty->setObjectName(QStringLiteral("outcomeEmpty"));
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setWidget(NewContent());
    m_pages->addWidget(m_empty);
    m_pages->addWidget(m_scroll);
    auto* lines = new QVBoxLayout(this);
    lines->addWidget(m_source);
    lines->addWidget(m_pages, 1);
    lines->addWidget(m_convert);
}

QWidget* OutcomePane::NewContent()
{
    m_notices->setObjectName(QStringLiteral("outcomeNotices"));
    m_notices->setAccessibleName(tr("Warnings"));
    m_notices->setWordWrap(true);
    m_notices->setTextFormat(Qt::RichText);
    m_notices->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* content = new QWidget(this);
    auto* lines = new QVBoxLayout(content);
    lines->setContentsMargins({});
    lines->addWidget(m_drawings);
    lines->addWidget(m_notices);
    lines->addWidget(m_remedies);
    lines->addWidget(m_view);
    lines->addStretch(1);
    return content;
}

void OutcomePane::Connect()
{
    connect(&m_document, &StudioDocument::PresetChanged, this,
            [this](const std::shared_ptr<IVXFormatPreset>& preset)
            {
                if (preset == m_preset)
                    UpdateSoon();
            });
    connect(&m_update, &QTimer::timeout, this, &OutcomePane::Update);
    connect(&m_loader, &SourceLoader::Loaded, this, &OutcomePane::TakeSource);
    connect(m_source, &SourceBar::Chosen, this, &OutcomePane::OpenSource);
    connect(m_source, &SourceBar::CancelWanted, this,
            [this]
            {
                m_loader.GiveUp();
                m_source->ShowReading({});
            });
    connect(m_convert, &ConvertPanel::FittingChanged, this, &OutcomePane::Update);
    connect(m_convert, &ConvertPanel::ConversionStarted, this, &OutcomePane::ConversionStarted);
    connect(m_convert, &ConvertPanel::Refused, this, &OutcomePane::Refused);
    connect(m_convert, &ConvertPanel::ConversionDone, this, &OutcomePane::ConversionDone);
    connect(m_remedies, &RemedyButtons::Chosen, this,
            [this](int number)
            {
                const auto edit = m_edits[static_cast<std::size_t>(number)]; // new ones come in its place
                m_document.EditPreset(m_preset, edit.text, edit.change);
            });
    connect(m_view, &OutcomeView::CurrentMoved, this,
            [this](const QRect& row)
            {
                const QRect seen(m_view->mapTo(m_scroll->widget(), row.topLeft()), row.size());
                m_scroll->ensureVisible(0, seen.bottom(), 0, row.height());
                m_scroll->ensureVisible(0, seen.top(), 0, 0);
            });
}

void OutcomePane::ShowPreset(std::shared_ptr<IVXFormatPreset> preset)
{
    m_preset = std::move(preset);
    Update();
}

void OutcomePane::OpenSource(const QString& path)
{
    m_source->ShowReading(path);
    m_loader.Load(path);
}

void OutcomePane::AskForSource() { m_source->AskForFile(); }

void OutcomePane::AskToConvert() { m_convert->AskForOutput(); }

void OutcomePane::ConvertTo(const QString& path) { m_convert->ConvertTo(path); }

OutputHabits OutcomePane::Habits() const { return m_convert->Habits(); }

void OutcomePane::SetHabits(const OutputHabits& habits) { m_convert->SetHabits(habits); }

bool OutcomePane::IsConverting() const { return m_convert->IsConverting(); }

void OutcomePane::TakeSource(const QString& path, const VXMediaFile& media)
{
    if (!media.parameter)
    {
        const auto reason = ToolText(media.error);
        m_source->ShowError(reason);
        return emit SourceFailed(reason);
    }
    m_path = path;
    m_media = media;
    m_source->ShowSource(path);
    m_source->ShowReading({});
    Update();
    emit SourceOpened(path);
}

// While changes come in one after the other it is shown now and then, not at the end alone.
void OutcomePane::UpdateSoon()
{
    if (!m_update.isActive())
        m_update.start();
}

void OutcomePane::UpdateEmpty()
{
    m_empty->setText(
        m_preset ? tr("Drop a video or sound file here, or open one, to see what this preset makes of it.")
                 : tr("Drop a video or sound file here, or open one, to see what it holds; with a preset "
                      "chosen, also what becomes of it."));
    m_pages->setCurrentWidget(m_media ? static_cast<QWidget*>(m_scroll) : m_empty);
    m_convert->setVisible(m_media.has_value());
}

void OutcomePane::Update()
{
    m_update.stop();
    UpdateEmpty();
    if (!m_media)
        return;
    std::shared_ptr<const Outcome> outcome;
    if (m_preset)
        outcome = std::make_shared<const Outcome>(OutcomeOf(*m_media, m_path.toStdString(), *m_preset));
    const auto* output = outcome ? outcome->match.output.get() : nullptr;
    m_drawings->SetFacts(SizeFactsOf(*m_media->parameter, output, m_preset.get(), m_convert->Fitting()),
                         outcome ? BitrateFactsOf(outcome->match, *m_preset) : StreamBitrates());
    UpdateNotices(outcome.get());
    m_model->SetRows(OutcomeRowsOf(*m_media, outcome.get()));
    m_convert->Offer({m_path, outcome, m_preset});
}

void OutcomePane::UpdateNotices(const Outcome* outcome)
{
    m_edits = outcome ? RemedyEditsOf(*outcome, *m_preset) : std::vector<RemedyEdit>();
    QStringList offered;
    for (const auto& edit : m_edits)
        offered << edit.text;
    const auto notices = outcome ? NoticesHtml(*outcome, offered) : QString();
    m_notices->setText(notices);
    m_notices->setVisible(!notices.isEmpty());
    m_remedies->Offer(offered);
}

void OutcomePane::SetDropping(bool isDropping)
{
    m_isDropping = isDropping;
    update();
}

void OutcomePane::dragEnterEvent(QDragEnterEvent* event)
{
    if (FileOf(*event->mimeData()).isEmpty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    SetDropping(true);
}

void OutcomePane::dragLeaveEvent(QDragLeaveEvent*) { SetDropping(false); }

void OutcomePane::dropEvent(QDropEvent* event)
{
    SetDropping(false);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    OpenSource(FileOf(*event->mimeData()));
}

void OutcomePane::paintEvent(QPaintEvent*)
{
    constexpr int kFrame = 3;
    if (!m_isDropping)
        return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), kFrame));
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

} // namespace Vexlor::Studio
