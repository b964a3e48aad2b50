#include "OutcomeRows.h"

#include "ConversionTexts.h"
#include "Outcome.h"
#include "apps/studio/ShownText.h"
#include "apps/studio/texts/ToolText.h"

#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"

#include <QCoreApplication>

#include <array>
#include <span>
#include <utility>

namespace Vexlor::Studio
{

namespace
{

// Names of values, which the tools' library gives, as translators are to find them.
[[maybe_unused]] constexpr std::array kNames{
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Size"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Displayed as"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Frame rate"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Pixel format"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Profile"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Level"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Sample aspect"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Bitrate"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Highest bitrate"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Lowest bitrate"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Bitrate mode"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Codec tag"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Sample rate"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Channels"),
    QT_TRANSLATE_NOOP("Vexlor::Studio::OutcomeRows", "Sample format"),
};

/// The table in the making.
class Rows final
{
    Q_DECLARE_TR_FUNCTIONS(Vexlor::Studio::OutcomeRows)

public:
    Rows(const VXMediaFile& media, const Outcome* outcome) : m_media(media), m_outcome(outcome) {}

    std::vector<OutcomeRow> Take()
    {
        AddFile();
        const std::shared_ptr<const IVXFormatParameter> source = m_media.parameter;
        const auto output = m_outcome ? m_outcome->match.OutputStreams() : Tool::Streams();
        const auto* reasons = m_outcome ? &m_outcome->match.reasons : nullptr;
        AddStream({tr("Video"),
                   Tool::VideoRows(),
                   {source->GetVideoCodecParameter(), m_media.videoCodec},
                   output.video,
                   reasons ? &reasons->video : nullptr});
        AddStream({tr("Sound"),
                   Tool::AudioRows(),
                   {source->GetAudioCodecParameter(), m_media.audioCodec},
                   output.audio,
                   reasons ? &reasons->audio : nullptr});
        return std::move(m_rows);
    }

private:
    /// A kind of stream on both sides.
    struct Sides
    {
        QString title;
        std::span<const Tool::MatchRow> rows;
        Tool::Stream source;
        Tool::Stream output;
        const Tool::StreamReasons* reasons; ///< none without an output
    };

    void AddHeading(const QString& title) { m_rows.push_back({.isHeading = true, .name = title}); }

    void Add(const QString& name, const QString& source, const QString& output, const QString& why)
    {
        if (!source.isEmpty() || !output.isEmpty())
            m_rows.push_back({false, name, source, output, why});
    }

    void AddFile()
    {
        AddHeading(tr("File"));
        Add(tr("Container"), ShownText(m_media.parameter->FormatName()),
            m_outcome ? ShownText(m_outcome->match.output->FormatName()) : QString(),
            m_outcome ? tr("the preset's") : QString());
        const auto length = m_media.duration > 0 ? ConversionTexts::Duration(m_media.duration) : QString();
        Add(tr("Length"), length, m_outcome ? length : QString(), {});
        const bool isPredicted = m_outcome && m_outcome->size;
        Add(tr("Size of the file"), ToolText(Tool::SizeOfBytes(double(m_media.size))),
            isPredicted ? ConversionTexts::LikelySize(m_outcome->size->Total()) : QString(),
            isPredicted ? tr("predicted from the bitrates: %1")
                              .arg(ConversionTexts::SizeSpan(m_outcome->size->Total()))
                        : QString());
    }

    void AddStream(const Sides& sides)
    {
        if (!sides.source.parameter)
            return AddHeading(tr("%1: none in the source").arg(sides.title));
        AddHeading(sides.title);
        AddCodec(sides);
        for (const auto& row : sides.rows)
            Add(QCoreApplication::translate("Vexlor::Studio::OutcomeRows", row.name),
                TextOf(row, sides.source), TextOf(row, sides.output), Why(sides, row.value));
    }

    void AddCodec(const Sides& sides)
    {
        const auto source = ShownText(sides.source.codec);
        if (!m_outcome)
            return Add(tr("Codec"), source, {}, {});
        if (sides.output.parameter)
            return Add(tr("Codec"), source, ShownText(sides.output.codec),
                       Why(sides, Tool::MatchValue::Codec));
        Add(tr("Codec"), source, tr("left out"), tr("the preset has no codec for it"));
    }

    static QString TextOf(const Tool::MatchRow& row, const Tool::Stream& stream)
    {
        return stream.parameter ? ToolText(row.text(*stream.parameter)) : QString();
    }

    static QString Why(const Sides& sides, Tool::MatchValue value)
    {
        QStringList steps;
        if (sides.reasons && sides.reasons->contains(value))
            for (const auto& step : sides.reasons->at(value))
                steps << ToolText(step.text);
        return steps.join(QStringLiteral(", "));
    }

    const VXMediaFile& m_media;
    const Outcome* m_outcome;
    std::vector<OutcomeRow> m_rows;
};

} // namespace

std::vector<OutcomeRow> OutcomeRowsOf(const VXMediaFile& media, const Outcome* outcome)
{
    return Rows(media, outcome).Take();
}

} // namespace Vexlor::Studio
