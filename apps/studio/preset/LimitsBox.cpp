#include "LimitsBox.h"

#include "BitrateBox.h"
#include "EditNames.h"
#include "MessageLine.h"
#include "NumberField.h"
#include "PresetSession.h"

#include "IVXFormatPreset.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>

#include <array>

namespace Vexlor::Studio
{

using Preset = IVXFormatPreset;

/// One bound: how it is named and stored.
struct Limit
{
    const char* noun;
    int (Preset::*get)() const;
    void (Preset::*set)(int);
};

/// Two bounds that stand on one line.
struct LimitPair
{
    const char* label;
    const char* between;
    bool isSize;
    std::array<Limit, 2> limits;
};

namespace
{

constexpr int kMostPixels = 99'999;
constexpr int kFewestCharacters = 11;

constexpr std::array kVideo{
    LimitPair{QT_TRANSLATE_NOOP("Limit", "Lar&gest size"),
              "\u00d7",
              true,
              {{{QT_TRANSLATE_NOOP("Limit", "largest width"), &Preset::MaxWidth, &Preset::SetMaxWidth},
                {QT_TRANSLATE_NOOP("Limit", "largest height"), &Preset::MaxHeight, &Preset::SetMaxHeight}}}},
    LimitPair{QT_TRANSLATE_NOOP("Limit", "Smallest si&ze"),
              "\u00d7",
              true,
              {{{QT_TRANSLATE_NOOP("Limit", "smallest width"), &Preset::MinWidth, &Preset::SetMinWidth},
                {QT_TRANSLATE_NOOP("Limit", "smallest height"), &Preset::MinHeight, &Preset::SetMinHeight}}}},
    LimitPair{QT_TRANSLATE_NOOP("Limit", "&Bitrate"),
              "\u2013",
              false,
              {{{QT_TRANSLATE_NOOP("Limit", "lowest video bitrate"), &Preset::MinVideoBitrate,
                 &Preset::SetMinVideoBitrate},
                {QT_TRANSLATE_NOOP("Limit", "highest video bitrate"), &Preset::MaxVideoBitrate,
                 &Preset::SetMaxVideoBitrate}}}},
};

constexpr std::array kAudio{
    LimitPair{QT_TRANSLATE_NOOP("Limit", "&Bitrate"),
              "\u2013",
              false,
              {{{QT_TRANSLATE_NOOP("Limit", "lowest audio bitrate"), &Preset::MinAudioBitrate,
                 &Preset::SetMinAudioBitrate},
                {QT_TRANSLATE_NOOP("Limit", "highest audio bitrate"), &Preset::MaxAudioBitrate,
                 &Preset::SetMaxAudioBitrate}}}},
};

QString Translated(const char* text) { return QCoreApplication::translate("Limit", text); }

bool IsCrossed(int lowest, int highest, int none)
{
    return lowest > none && highest > none && lowest >= highest;
}

} // namespace

LimitsBox::LimitsBox(PresetSession& session, bool isVideo, FieldManners& manners, QWidget* parent)
    : QGroupBox(tr("Limits for every codec"), parent), m_session(session), m_isVideo(isVideo),
      m_message(new MessageLine(this))
{
    auto* form = new QFormLayout(this);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    if (isVideo)
        for (const auto& row : kVideo)
            AddRow(*form, row, manners);
    else
        for (const auto& row : kAudio)
            AddRow(*form, row, manners);
    form->addRow(m_message);
}

void LimitsBox::AddRow(QFormLayout& form, const LimitPair& row, FieldManners& manners)
{
    auto* line = new QHBoxLayout;
    auto& first = AddField(row, row.limits[0], manners);
    line->addWidget(&first, 1);
    auto* between = new QLabel(QString::fromUtf8(row.between), this);
    between->setAlignment(Qt::AlignCenter);
    between->setFixedWidth(fontMetrics().averageCharWidth() * 2);
    line->addWidget(between);
    line->addWidget(&AddField(row, row.limits[1], manners), 1);
    auto* label = new QLabel(Translated(row.label), this);
    label->setBuddy(&first);
    form.addRow(label, line);
}

QWidget& LimitsBox::AddField(const LimitPair& row, const Limit& limit, FieldManners& manners)
{
    auto& box = NewBox(row);
    const auto noun = Translated(limit.noun);
    box.setObjectName(QString::fromLatin1(limit.noun));
    box.setAccessibleName(noun);
    box.setToolTip(noun);
    box.setMinimumWidth(box.fontMetrics().averageCharWidth() * kFewestCharacters);
    const auto store = [this, noun, set = limit.set](int number, int run)
    {
        m_session.Edit(
            ChangeText(noun), [&](Preset& preset) { (preset.*set)(number); }, run);
    };
    m_fields.push_back({new NumberField(box, manners, store), limit.get});
    return box;
}

QSpinBox& LimitsBox::NewBox(const LimitPair& row)
{
    if (!row.isSize)
        return *new BitrateBox(m_isVideo ? BitrateBox::Unit::Mega : BitrateBox::Unit::Kilo, this);
    auto* box = new QSpinBox(this);
    box->setRange(0, kMostPixels);
    box->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    box->setSpecialValueText(tr("None"));
    box->setSuffix(tr(" px"));
    box->setAlignment(Qt::AlignRight);
    return *box;
}

void LimitsBox::Refresh()
{
    const auto& preset = m_session.Preset();
    if (!preset)
        return;
    for (const auto& field : m_fields)
        field.field->Show(((*preset).*field.get)());
    m_message->Say(Doubt());
}

QString LimitsBox::Doubt() const
{
    const auto& preset = *m_session.Preset();
    const bool isWide = preset.MaxWidth() > 0;
    const bool isHigh = preset.MaxHeight() > 0;
    const bool hasLeast = preset.MinWidth() > 0 || preset.MinHeight() > 0;
    const int lowest = m_isVideo ? preset.MinVideoBitrate() : preset.MinAudioBitrate();
    const int highest = m_isVideo ? preset.MaxVideoBitrate() : preset.MaxAudioBitrate();
    if (m_isVideo && (isWide != isHigh || (hasLeast && !isWide)))
        return tr("Limits of the size work only when both largest sides are given.");
    if (m_isVideo && isWide &&
        (IsCrossed(preset.MinWidth(), preset.MaxWidth() + 1, 0) ||
         IsCrossed(preset.MinHeight(), preset.MaxHeight() + 1, 0)))
        return tr("The smallest size is larger than the largest one.");
    if (IsCrossed(lowest, highest, -1))
        return tr("The lowest bitrate is not below the highest one.");
    return {};
}

} // namespace Vexlor::Studio
