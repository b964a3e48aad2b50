#include "CustomBitrate.h"

#include "BitrateBox.h"
#include "EditNames.h"
#include "MessageLine.h"
#include "NumberField.h"
#include "PresetSession.h"
#include "QualityBitrate.h"

#include "IVXCodecPreset.h"
#include "IVXFormatPreset.h"

#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace Vexlor::Studio
{

CustomBitrate::CustomBitrate(CodecSession& session, FieldManners& manners, QWidget* parent)
    : QWidget(parent), m_session(session)
{
    const bool isVideo = session.Family().kind == Tool::StreamKind::Video;
    auto* box = new BitrateBox(isVideo ? BitrateBox::Unit::Mega : BitrateBox::Unit::Kilo, this);
    box->setMinimum(1);
    box->setObjectName(QStringLiteral("own bitrate"));
    box->setAccessibleName(tr("Bitrate of one's own"));
    m_bitrate = new NumberField(*box, manners, [this](int bitrate, int run) { Store(bitrate, run); });

    auto* keep = new QPushButton(tr("Set as limits"), this);
    keep->setObjectName(QStringLiteral("keep"));
    keep->setToolTip(tr("Sets both limits of the bitrate instead, which documents can hold"));
    connect(keep, &QPushButton::clicked, this, &CustomBitrate::KeepAsLimits);

    auto* note = new MessageLine(this);
    note->Say(tr("Documents cannot hold a bitrate of one's own: once saved and opened again, it is Auto."));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
    layout->addWidget(note);
    layout->addWidget(keep, 0, Qt::AlignLeft);
}

void CustomBitrate::Refresh()
{
    const auto codec = m_session.Codec();
    const bool isOwn = codec && HasOwnBitrate(*codec);
    setVisible(isOwn);
    if (isOwn)
        m_bitrate->Show(OwnBitrate(*codec));
}

void CustomBitrate::Store(int bitrate, int run)
{
    m_session.Edit(
        ChangeText(tr("bitrate")), [&](IVXCodecPreset& codec) { SetOwnBitrate(codec, bitrate); }, run);
}

// The limits are no room only where the upper one lies above the lower one.
void CustomBitrate::KeepAsLimits()
{
    const auto codec = m_session.Codec();
    if (!codec)
        return;
    const int lowest = std::min(OwnBitrate(*codec), std::numeric_limits<int>::max() - 1);
    const bool isVideo = m_session.Family().kind == Tool::StreamKind::Video;
    const auto keep = [&](IVXFormatPreset& preset)
    {
        isVideo ? preset.SetMinVideoBitrate(lowest) : preset.SetMinAudioBitrate(lowest);
        isVideo ? preset.SetMaxVideoBitrate(lowest + 1) : preset.SetMaxAudioBitrate(lowest + 1);
        CodecEntries(preset, m_session.Family()).At(m_session.Index())->SetIndexForQualityPresets(0);
    };
    m_session.Whole().Edit(tr("Set limits to the bitrate"), keep);
}

} // namespace Vexlor::Studio
