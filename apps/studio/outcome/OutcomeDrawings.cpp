#include "OutcomeDrawings.h"

#include "BitrateBar.h"
#include "DrawingRole.h"
#include "SizeDrawing.h"

#include <QBoxLayout>
#include <QResizeEvent>

namespace Vexlor::Studio
{

namespace
{

constexpr int kLettersOfTwo = 90; // beside each other

} // namespace

OutcomeDrawings::OutcomeDrawings(QWidget* parent)
    : QWidget(parent), m_sizes(new SizeDrawing(this)),
      m_video(new BitrateBar(tr("Bitrate of the video"), this)),
      m_audio(new BitrateBar(tr("Bitrate of the sound"), this)),
      m_layout(new QBoxLayout(QBoxLayout::TopToBottom, this))
{
    TellThatDrawingsArePictures();
    m_video->setObjectName(QStringLiteral("videoBitrate"));
    m_audio->setObjectName(QStringLiteral("audioBitrate"));
    auto* bars = new QVBoxLayout;
    bars->addWidget(m_video);
    bars->addWidget(m_audio);
    bars->addStretch(1);
    m_layout->setContentsMargins({});
    m_layout->addWidget(m_sizes, 1, Qt::AlignTop);
    m_layout->addLayout(bars, 1);
    SetFacts({}, {});
}

void OutcomeDrawings::SetFacts(const SizeFacts& sizes, const StreamBitrates& bitrates)
{
    m_sizes->SetFacts(sizes);
    m_video->SetFacts(bitrates.video);
    m_audio->SetFacts(bitrates.audio);
    m_sizes->setVisible(!sizes.source.isEmpty());
    m_video->setVisible(bitrates.video.output > 0);
    m_audio->setVisible(bitrates.audio.output > 0);
    Arrange();
}

void OutcomeDrawings::Arrange()
{
    const bool isWide = width() >= kLettersOfTwo * fontMetrics().averageCharWidth();
    m_layout->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void OutcomeDrawings::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Arrange();
}

} // namespace Vexlor::Studio
