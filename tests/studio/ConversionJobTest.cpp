#include "apps/studio/outcome/ConversionJob.h"
#include "apps/host/convert/FfmpegCommand.h"
#include "apps/host/match/MediaMatch.h"
#include "apps/studio/outcome/ConversionTexts.h"
#include "apps/studio/outcome/OutputName.h"
#include "tests/media/MediaMaker.h"
#include "tests/studio/OutcomeSources.h"
#include "tests/studio/Patience.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

#include <gmock/gmock.h>

#include <optional>

namespace Vexlor::Studio
{

namespace
{

using Kind = ConversionEnd::Kind;
using testing::HasSubstr;

/// A folder with a conversion of a clip.
class Conversion
{
public:
    explicit Conversion(const char* clip, int video = VXCodecID_MPEG4) : m_source(Media::Clip(clip))
    {
        const auto preset = PresetOf("MKV", video, VXCodecID_None);
        const auto match = Tool::MatchMedia(Tool::ReadSource(m_source), *preset);
        m_command = Tool::FfmpegCommandFor(match, m_source, Output(), {});
        m_duration = match.media.duration;
        QObject::connect(&job, &ConversionJob::Ended, &job, [this](const ConversionEnd& it) { end = it; });
        QObject::connect(&job, &ConversionJob::Progressed, &job,
                         [this](const Tool::ConversionProgress& it) { progress = it; });
    }

    std::string Output() const { return m_folder.Path("out.mkv"); }
    void Write(std::string_view bytes) const { m_folder.Write("out.mkv", bytes); }
    QStringList Left() const
    {
        return QDir(QString::fromStdString(m_folder.Path(""))).entryList(QDir::Files | QDir::Hidden);
    }

    void Start(const std::string& source = {})
    {
        if (!source.empty())
            m_command.inputs = {"-i", source};
        job.Start(m_command, {m_source, Output(), false, m_duration});
    }
    bool Wait()
    {
        return QTest::qWaitFor([this] { return end.has_value(); }, kPatience);
    }
    bool WaitForProgress()
    {
        return QTest::qWaitFor([this] { return progress.has_value(); }, kPatience);
    }

    std::optional<ConversionEnd> end;
    std::optional<Tool::ConversionProgress> progress;

private:
    Media::ScratchFolder m_folder;
    std::string m_source;
    Tool::FfmpegCommand m_command;
    double m_duration = 0;

public:
    ConversionJob job; // goes first, for it writes into the folder
};

TEST(ConversionJob, MakesTheOutput)
{
    Conversion conversion("quarters.mp4");
    conversion.Start();
    ASSERT_TRUE(conversion.Wait());
    EXPECT_EQ(Kind::Done, conversion.end->kind) << conversion.end->error;
    EXPECT_EQ("MPEG-4", Tool::ReadSource(conversion.Output()).videoCodec);
    EXPECT_EQ(QFileInfo(QString::fromStdString(conversion.Output())).size(), conversion.end->result.bytes);
    EXPECT_FALSE(conversion.job.IsRunning());
}

TEST(ConversionJob, TellsHowFarItIs)
{
    Conversion conversion("quarters.mp4");
    conversion.Start();
    ASSERT_TRUE(conversion.Wait());
    ASSERT_TRUE(conversion.progress);
    EXPECT_EQ(1, conversion.progress->Share());
}

TEST(ConversionJob, LeavesNothingWhenCancelled)
{
    Conversion conversion("film.mp4", VXCodecID_VP9);
    conversion.Start();
    ASSERT_TRUE(conversion.WaitForProgress());
    conversion.job.Cancel();
    ASSERT_TRUE(conversion.Wait());
    EXPECT_EQ(Kind::Cancelled, conversion.end->kind);
    EXPECT_TRUE(conversion.Left().isEmpty());
}

TEST(ConversionJob, FailsWithFfmpegsWords)
{
    Conversion conversion("quarters.mp4");
    conversion.Start("/nowhere/at all.mp4");
    ASSERT_TRUE(conversion.Wait());
    EXPECT_EQ(Kind::Failed, conversion.end->kind);
    EXPECT_THAT(conversion.end->error, HasSubstr("No such file or directory"));
    EXPECT_TRUE(conversion.Left().isEmpty());
}

TEST(ConversionJob, OverwritesNothingUnasked)
{
    Conversion conversion("quarters.mp4");
    conversion.Write("mine");
    conversion.Start();
    ASSERT_TRUE(conversion.Wait());
    EXPECT_EQ(Kind::Failed, conversion.end->kind);
    EXPECT_EQ("mine", Media::BytesOf(conversion.Output()));
}

TEST(ConversionJob, StopsWhatRunsWhenItIsDestroyed)
{
    const Media::ScratchFolder folder;
    const auto source = Media::Clip("film.mp4");
    const auto match =
        Tool::MatchMedia(Tool::ReadSource(source), *PresetOf("MKV", VXCodecID_VP9, VXCodecID_None));
    {
        ConversionJob job;
        bool isBegun = false;
        QObject::connect(&job, &ConversionJob::Progressed, &job, [&isBegun] { isBegun = true; });
        job.Start(Tool::FfmpegCommandFor(match, source, folder.Path("out.mkv"), {}),
                  {source, folder.Path("out.mkv"), false, match.media.duration});
        ASSERT_TRUE(QTest::qWaitFor([&isBegun] { return isBegun; }, kPatience));
    }
    EXPECT_TRUE(QDir(QString::fromStdString(folder.Path(""))).isEmpty(QDir::Files | QDir::Hidden));
}

TEST(ConversionJob, StartsAgainAfterItsEnd)
{
    Conversion conversion("quarters.mp4");
    conversion.Start("/nowhere/at all.mp4");
    ASSERT_TRUE(conversion.Wait());
    conversion.end.reset();
    conversion.Start(Media::Clip("quarters.mp4"));
    ASSERT_TRUE(conversion.Wait());
    EXPECT_EQ(Kind::Done, conversion.end->kind) << conversion.end->error;
}

TEST(ConversionTexts, TellProgress)
{
    const Tool::ConversionProgress progress{.done = 30, .duration = 120, .speed = 2.5, .bytes = 1'500'000};
    EXPECT_EQ("25 %, 2.5× speed, 0:36 left, 1.50 MB", ConversionTexts::Progress(progress));
}

TEST(ConversionTexts, TellProgressOfUnknownLength)
{
    const Tool::ConversionProgress progress{.done = 3723, .bytes = 12};
    EXPECT_EQ("1:02:03 done, 12 bytes", ConversionTexts::Progress(progress));
}

TEST(ConversionTexts, TellOneSizeWhereBothAreTheSame)
{
    EXPECT_EQ("2.00 MB", ConversionTexts::SizeSpan({2e6, 2e6, 2e6}));
    EXPECT_EQ("1.00 MB to 3.00 MB", ConversionTexts::SizeSpan({1e6, 2e6, 3e6}));
}

TEST(OutputName, HasTheContainersEnding)
{
    EXPECT_EQ("m2ts", EndingOf("M2TS"));
    EXPECT_EQ("evil", EndingOf("../E vil"));
}

TEST(OutputName, IsOneThatIsNotThere)
{
    const Media::ScratchFolder folder;
    const auto source = QString::fromStdString(folder.Write("clip.mp4", "x"));
    EXPECT_EQ("clip.mkv", QFileInfo(FreeOutputName(source, "mkv")).fileName());
    EXPECT_EQ("clip 2.mp4", QFileInfo(FreeOutputName(source, "mp4")).fileName());
    EXPECT_EQ("/clip.mp4", FreeOutputName(source, "mp4", "/"));
    EXPECT_EQ(FreeOutputName(source, "mp4"), FreeOutputName(source, "mp4", "/a folder that is gone"));
}

} // namespace

} // namespace Vexlor::Studio
