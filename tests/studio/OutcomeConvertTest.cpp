#include "apps/studio/document/Aside.h"
#include "tests/studio/OutcomePaneFixture.h"
#include "tests/studio/Patience.h"

#include <QDir>
#include <QFileDialog>
#include <QProgressBar>

#include <filesystem>
#include <future>

namespace Vexlor::Studio
{

namespace
{

/// Conversions into a folder of their own.
class OutcomeConvert : public OutcomePaneTest
{
protected:
    void SetUp() override
    {
        std::filesystem::copy(Media::Clip("quarters.mp4"), folder.Path("clip.mp4"));
        pane.ShowPreset(preset);
        OpenFile(Here("clip.mp4"));
    }

    QString Here(const char* name) const { return QString::fromStdString(folder.Path(name)); }
    QStringList Left() const { return QDir(Here("")).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    bool WaitForEnd()
    {
        return QTest::qWaitFor([this] { return !pane.IsConverting(); }, kPatience);
    }
    /// A conversion that takes its time.
    void StartSlowly()
    {
        Open("film.mp4");
        pane.ShowPreset(PresetOf("MKV", VXCodecID_VP9, VXCodecID_None));
        pane.ConvertTo(Here("slow.mkv"));
        EXPECT_TRUE(pane.IsConverting());
    }

    Media::ScratchFolder folder;
};

TEST_F(OutcomeConvert, MakesTheOutputAndSaysSo)
{
    QSignalSpy done(&pane, &OutcomePane::ConversionDone);
    pane.ConvertTo(Here("out.mkv"));
    ASSERT_TRUE(done.wait(kPatience));
    EXPECT_EQ("MPEG-4", ReadMediaFile(folder.Path("out.mkv")).videoCodec);
    EXPECT_TRUE(Text("conversionText").startsWith("out.mkv is made: "));
    EXPECT_TRUE(IsShown("showInFolder"));
    EXPECT_FALSE(IsShown("conversionProgress"));
    EXPECT_EQ(preset, done.front().front().value<std::shared_ptr<IVXFormatPreset>>());
}

TEST_F(OutcomeConvert, SuggestsAFileBesideTheSource)
{
    Click("convert");
    auto* dialog = pane.findChild<QFileDialog*>();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(QFileDialog::AcceptSave, dialog->acceptMode());
    EXPECT_EQ(QDir(Here("")).canonicalPath(), dialog->directory().canonicalPath());
    EXPECT_EQ("mkv", dialog->defaultSuffix());
    emit dialog->fileSelected(Here("out.mkv"));
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ((QStringList{"clip.mp4", "out.mkv"}), Left());
}

TEST_F(OutcomeConvert, AsksBeforeItReplacesAFile)
{
    folder.Write("out.mkv", "mine");
    pane.ConvertTo(Here("out.mkv"));
    EXPECT_EQ("out.mkv is there already.", Text("conversionText"));
    EXPECT_FALSE(pane.IsConverting());
    Click("dismissQuestion");
    EXPECT_EQ("mine", Media::BytesOf(folder.Path("out.mkv")));
    EXPECT_FALSE(IsShown("replaceOutput"));
}

TEST_F(OutcomeConvert, NoLongerAsksWhenAnotherPresetIsPicked)
{
    folder.Write("out.mkv", "mine");
    pane.ConvertTo(Here("out.mkv"));
    ASSERT_TRUE(IsShown("replaceOutput"));
    pane.ShowPreset(PresetOf("MKV", VXCodecID_VP9, VXCodecID_None));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !IsShown("replaceOutput"); }, kPatience));
}

TEST_F(OutcomeConvert, ReplacesAFileWhenTold)
{
    folder.Write("out.mkv", "mine");
    pane.ConvertTo(Here("out.mkv"));
    Click("replaceOutput");
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ("MPEG-4", ReadMediaFile(folder.Path("out.mkv")).videoCodec);
}

TEST_F(OutcomeConvert, NeverReplacesTheSource)
{
    const auto before = Media::BytesOf(folder.Path("clip.mp4"));
    pane.ConvertTo(Here("clip.mp4"));
    ASSERT_TRUE(WaitForEnd());
    EXPECT_TRUE(Text("conversionDetails").contains("is the source itself"));
    EXPECT_EQ(before, Media::BytesOf(folder.Path("clip.mp4")));
}

TEST_F(OutcomeConvert, ShowsProgressAndIsCancelled)
{
    StartSlowly();
    ASSERT_TRUE(QTest::qWaitFor([this] { return Text("conversionDetails").contains('%'); }, kPatience));
    EXPECT_TRUE(IsShown("conversionProgress"));
    EXPECT_FALSE(Find("convert")->isEnabled());
    Click("cancelConversion");
    ASSERT_TRUE(WaitForEnd());
    EXPECT_TRUE(Text("conversionText").startsWith("Cancelled"));
    EXPECT_EQ(QStringList{"clip.mp4"}, Left());
    EXPECT_TRUE(Find("convert")->isEnabled());
}

TEST_F(OutcomeConvert, ShowsWhyItFailed)
{
    std::filesystem::remove(folder.Path("clip.mp4"));
    pane.ConvertTo(Here("out.mkv"));
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ("It could not be converted.", Text("conversionText"));
    EXPECT_TRUE(Text("conversionDetails").contains("No such file or directory"));
    EXPECT_TRUE(Left().isEmpty());
    EXPECT_FALSE(IsShown("showInFolder"));
}

TEST_F(OutcomeConvert, GoesOnAsItBeganWhileThePresetIsEdited)
{
    QSignalSpy done(&pane, &OutcomePane::ConversionDone);
    pane.ConvertTo(Here("out.mkv"));
    document.EditPreset(preset, "Codec",
                        [](IVXFormatPreset& it) { it.SetMaxWidth(16), it.SetMaxHeight(16); });
    ASSERT_TRUE(done.wait(kPatience));
    EXPECT_EQ(160, ReadMediaFile(folder.Path("out.mkv")).parameter->GetVideoCodecParameter()->GetWidth());
    EXPECT_EQ(0, done.front().back().value<std::shared_ptr<IVXFormatPreset>>()->MaxWidth());
    EXPECT_EQ(preset, done.front().front().value<std::shared_ptr<IVXFormatPreset>>());
}

TEST(OutcomePaneEnd, CancelsWhatItConverts)
{
    const Media::ScratchFolder folder;
    {
        StudioDocument document;
        OutcomePane pane(document);
        pane.ShowPreset(PresetOf("MKV", VXCodecID_VP9, VXCodecID_None));
        QSignalSpy opened(&pane, &OutcomePane::SourceOpened);
        pane.OpenSource(QString::fromStdString(Media::Clip("film.mp4")));
        ASSERT_TRUE(opened.wait(kPatience));
        pane.ConvertTo(QString::fromStdString(folder.Path("out.mkv")));
        ASSERT_TRUE(pane.IsConverting());
        QTest::qWait(200);
    }
    EXPECT_TRUE(QDir(QString::fromStdString(folder.Path(""))).isEmpty(QDir::Files | QDir::Hidden));
}

TEST(OutcomePaneEnd, DoesNotWaitForWhatItReads)
{
    std::promise<void> gate;
    {
        StudioDocument document;
        OutcomePane pane(document);
        pane.findChild<SourceLoader*>()->SetReader(
            [answer = gate.get_future().share()](const QString&)
            {
                answer.wait_for(std::chrono::milliseconds(kPatience));
                return VXMediaFile();
            });
        for (const char* name : {"a.mp4", "b.mp4", "c.mp4"})
            pane.OpenSource(name);
    }
    EXPECT_EQ(3, AsideCount());
    gate.set_value();
    EXPECT_TRUE(AwaitAside(std::chrono::milliseconds(kPatience)));
}

} // namespace

} // namespace Vexlor::Studio
