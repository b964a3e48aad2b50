#include "BusyLine.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace Vexlor::Studio
{

namespace
{

constexpr int kDelay = 400; // milliseconds
constexpr int kBarWidth = 120;

} // namespace

BusyLine::BusyLine(QWidget* parent)
    : QWidget(parent), m_text(new QLabel(this)), m_cancel(new QPushButton(tr("Cancel"), this))
{
    m_text->setTextFormat(Qt::PlainText);
    setObjectName("busyLine");
    m_text->setObjectName("busyText");
    m_cancel->setObjectName("cancelBusy");
    auto* bar = new QProgressBar(this);
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->setFixedWidth(kBarWidth);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_text);
    layout->addWidget(bar);
    layout->addWidget(m_cancel);
    connect(m_cancel, &QPushButton::clicked, this, &BusyLine::Cancel);
    m_delay.setSingleShot(true);
    m_delay.setInterval(kDelay);
    connect(&m_delay, &QTimer::timeout, this, &BusyLine::Show);
    hide();
}

void BusyLine::Begin(Work work, const QString& text, std::function<void()> cancel)
{
    std::erase_if(m_told, [work](const Told& told) { return told.work == work; });
    m_told.push_back({work, text, std::move(cancel)});
    std::ranges::stable_sort(m_told, {}, &Told::work);
    if (isVisible())
        Show();
    else if (!m_delay.isActive())
        m_delay.start();
}

void BusyLine::End(Work work)
{
    std::erase_if(m_told, [work](const Told& told) { return told.work == work; });
    if (m_told.empty())
        m_delay.stop();
    if (m_told.empty() || isVisible())
        Show();
}

void BusyLine::Show()
{
    setVisible(!m_told.empty());
    if (m_told.empty())
        return;
    const auto& told = m_told.back();
    m_text->setText(told.text);
    m_text->setAccessibleName(told.text);
    m_cancel->setVisible(static_cast<bool>(told.cancel));
    m_cancel->setAccessibleName(tr("Cancel: %1").arg(told.text));
    if (told.work == Work::Document && told.cancel)
        m_cancel->setFocus(); // nothing else takes keys
}

void BusyLine::Cancel()
{
    if (m_told.empty())
        return;
    const auto told = m_told.back();
    End(told.work);
    told.cancel();
}

} // namespace Vexlor::Studio
