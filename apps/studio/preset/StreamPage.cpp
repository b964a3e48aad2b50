#include "StreamPage.h"

#include "CodecList.h"
#include "CodecPage.h"
#include "LimitsBox.h"
#include "MessageLine.h"

#include "apps/studio/ShownText.h"

#include "IVXCodecPreset.h"
#include "IVXFormatPreset.h"
#include "VXMediaCodecs.h"

#include <QBoxLayout>

#include <algorithm>

namespace Vexlor::Studio
{

StreamPage::StreamPage(PresetSession& session, Tool::StreamKind kind, FieldManners& manners, QWidget* parent)
    : QWidget(parent), m_session(session, StreamOf(kind)), m_codecs(new CodecList(m_session, this)),
      m_page(new CodecPage(m_session, manners, this)),
      m_limits(new LimitsBox(session, kind == Tool::StreamKind::Video, manners, this)),
      m_message(new MessageLine(this)), m_sides(new QBoxLayout(QBoxLayout::LeftToRight))
{
    auto* layout = new QVBoxLayout(this);
    auto* side = new QVBoxLayout;
    side->addWidget(m_message);
    side->addWidget(m_page, 1, Qt::AlignTop);
    layout->addLayout(m_sides);
    layout->addWidget(m_limits);
    layout->addStretch(1);
    m_sides->addWidget(m_codecs, 0, Qt::AlignTop);
    m_sides->addLayout(side);
    connect(m_codecs, &CodecList::Opened, this, &StreamPage::RefreshPage);
}

void StreamPage::Open()
{
    m_codecs->OpenCurrent();
    Refresh();
}

void StreamPage::Refresh()
{
    m_codecs->Refresh();
    m_codecs->setVisible(IsOfUse());
    m_limits->Refresh();
    m_limits->setVisible(IsOfUse());
    RefreshPage();
}

bool StreamPage::IsOfUse() const
{
    const auto& preset = m_session.Whole().Preset();
    if (!preset)
        return false;
    const CodecEntries entries(*preset, m_session.Family());
    const auto addable = entries.Addable();
    return entries.At(0) ||
           std::ranges::any_of(addable, [](int codecID) { return codecID != VXCodecID_None; });
}

void StreamPage::RefreshPage()
{
    const auto codec = m_session.Codec();
    m_page->setVisible(codec && !codec->IsAutoValue());
    m_page->Refresh();
    m_message->Say(Remark());
}

QString StreamPage::Remark() const
{
    const auto& preset = m_session.Whole().Preset();
    const bool isVideo = m_session.Family().kind == Tool::StreamKind::Video;
    if (!IsOfUse())
    {
        const auto container = preset ? ShownText(preset->FormatName()) : QString();
        return isVideo ? tr("%1 holds no pictures.").arg(container) : tr("%1 holds no sound.").arg(container);
    }
    const CodecEntries entries(*preset, m_session.Family());
    if (!entries.At(0))
        return isVideo ? tr("No codec is offered: outputs have no picture. Add one with “+”.")
                       : tr("No codec is offered: outputs have no sound. Add one with “+”.");
    if (!entries.At(entries.Current()))
        return isVideo ? tr("No codec is chosen: outputs have no picture. Mark one in the list.")
                       : tr("No codec is chosen: outputs have no sound. Mark one in the list.");
    const auto codec = m_session.Codec();
    if (codec && codec->IsAutoValue())
        return tr("Auto stands for the first codec of the list that can be used.");
    return {};
}

// As narrow as list and page are one above the other.
QSize StreamPage::minimumSizeHint() const
{
    const auto margins = layout()->contentsMargins();
    const auto widest = std::max({m_codecs->minimumSizeHint().width(), m_page->minimumSizeHint().width(),
                                  m_limits->isVisibleTo(this) ? m_limits->minimumSizeHint().width() : 0});
    return {widest + margins.left() + margins.right(), QWidget::minimumSizeHint().height()};
}

void StreamPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int both = m_codecs->sizeHint().width() + m_page->minimumSizeHint().width() + m_sides->spacing();
    const bool isWide = contentsRect().width() > both + fontMetrics().averageCharWidth() * 4;
    m_sides->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_sides->setStretch(0, isWide ? 1 : 0);
    m_sides->setStretch(1, isWide ? 2 : 0);
}

} // namespace Vexlor::Studio
