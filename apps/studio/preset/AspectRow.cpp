#include "AspectRow.h"

#include "ComboFilling.h"
#include "EditNames.h"
#include "FieldManners.h"
#include "MessageLine.h"
#include "PresetSession.h"

#include "apps/host/Quantities.h"
#include "apps/host/Units.h"
#include "apps/studio/ShownText.h"
#include "apps/studio/texts/ToolText.h"

#include "IVXCodecPreset.h"
#include "IVXRational.h"
#include "IVXSampleAspectPreset.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace Vexlor::Studio
{

namespace
{

using Shape = IVXSampleAspectPreset::AspectPresetType;
using enum IVXSampleAspectPreset::AspectPresetType;

constexpr std::array kShapes{
    AspectDefault,       AspectCustom,         AspectNTSCDVD4x3,     AspectNTSCDVD16x9,
    AspectPALDVD4x3,     AspectPALDVD16x9,     AspectNTSCHD1080i4x3, AspectNTSCHD1080i16x9,
    AspectPALHD1080i4x3, AspectPALHD1080i16x9, AspectNTSCHD720p4x3,  AspectNTSCHD720p16x9,
    AspectPALHD720p4x3,  AspectPALHD720p16x9,  AspectNTSCVCD4x3,     AspectPALVCD4x3,
    AspectNTSCSVCD4x3,   AspectPALSVCD4x3,
};

QStringList ShapeTexts()
{
    QStringList texts;
    for (const auto shape : kShapes)
        texts.append(ToolText(IVXSampleAspectPreset::AspectPresetName(shape)));
    return texts;
}

int IndexOf(Shape shape)
{
    const auto found = std::ranges::find(kShapes, shape);
    return found == kShapes.end() ? -1 : static_cast<int>(found - kShapes.begin());
}

/// "16:15" as its two numbers.
std::optional<std::pair<int, int>> RatioOf(const QString& text)
{
    const auto sides = text.split(QLatin1Char(':'));
    if (sides.size() != 2)
        return {};
    const auto num = Tool::IntegerOf(sides[0].toStdString());
    const auto den = Tool::IntegerOf(sides[1].toStdString());
    const bool isRatio = num && den && *num > 0 && *den > 0;
    return isRatio ? std::optional(std::pair(*num, *den)) : std::nullopt;
}

} // namespace

AspectRow::AspectRow(CodecSession& session, FieldManners& manners, QWidget* parent)
    : QWidget(parent), m_session(session), m_shapes(new QComboBox(this)), m_ratio(new QLineEdit(this)),
      m_message(new MessageLine(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* line = new QHBoxLayout;
    line->addWidget(m_shapes, 1);
    line->addWidget(m_ratio);
    layout->addLayout(line);
    layout->addWidget(m_message);
    setFocusProxy(m_shapes);
    setObjectName(QStringLiteral("sample aspect"));

    m_shapes->setAccessibleName(tr("sample aspect"));
    LetShrink(*m_shapes);
    manners.Teach(*m_shapes);
    m_ratio->setObjectName(QStringLiteral("ratio"));
    m_ratio->setAccessibleName(tr("ratio of the sample aspect"));
    m_ratio->setAlignment(Qt::AlignRight);
    m_ratio->setFixedWidth(m_ratio->fontMetrics().averageCharWidth() * 9);
    manners.Teach(*m_ratio);
    connect(m_shapes, &QComboBox::activated, this, &AspectRow::Choose);
    connect(m_ratio, &QLineEdit::textEdited, this, &AspectRow::Store);
    connect(m_ratio, &QLineEdit::editingFinished, this, &AspectRow::FinishRatio);
}

void AspectRow::Refresh()
{
    const auto codec = m_session.Codec();
    if (!codec)
        return;
    const auto aspect = codec->AspectPreset();
    FillCombo(*m_shapes, ShapeTexts(), IndexOf(aspect->AspectType()));
    if (m_shapes->currentIndex() < 0)
        m_shapes->setPlaceholderText(tr("Unknown shape %1").arg(static_cast<int>(aspect->AspectType())));
    m_ratio->setReadOnly(aspect->AspectType() != AspectCustom);
    m_ratio->setFocusPolicy(m_ratio->isReadOnly() ? Qt::NoFocus : Qt::StrongFocus);
    ShowRatio(*aspect);
}

void AspectRow::Choose(int index)
{
    const auto choose = [&](IVXCodecPreset& codec)
    {
        const auto aspect = codec.AspectPreset();
        const auto before = aspect->Ratio();
        aspect->SetAspectType(kShapes[static_cast<std::size_t>(index)]);
        if (!aspect->Ratio()->IsValid() && before->IsValid() && aspect->AspectType() == AspectCustom)
            aspect->SetRatio(before);
    };
    m_session.Edit(ChangeText(tr("sample aspect"), m_shapes->itemText(index)), choose);
}

void AspectRow::Store(const QString& text)
{
    const auto ratio = RatioOf(text);
    m_message->Say(ratio ? QString() : tr("A ratio is written as 16:15."));
    if (!ratio)
        return;
    const auto store = [&](IVXCodecPreset& codec)
    { codec.AspectPreset()->SetRatio(ratio->first, ratio->second); };
    m_session.Edit(ChangeText(tr("sample aspect")), store, m_run.Id());
}

void AspectRow::FinishRatio()
{
    m_run.End();
    m_message->Say({});
    if (const auto codec = m_session.Codec())
        ShowRatio(*codec->AspectPreset());
}

void AspectRow::ShowRatio(const IVXSampleAspectPreset& aspect)
{
    const auto text = ShownText(Tool::RatioText(*aspect.Ratio()));
    const QSignalBlocker blocker(m_ratio);
    if (m_ratio->text() != text && !(m_ratio->hasFocus() && RatioOf(m_ratio->text()) == RatioOf(text)))
        m_ratio->setText(text);
}

} // namespace Vexlor::Studio
