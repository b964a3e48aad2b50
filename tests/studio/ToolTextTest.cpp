#include "apps/studio/texts/ToolText.h"

#include "apps/host/Catalogue.h"
#include "apps/studio/outcome/Outcome.h"
#include "apps/studio/outcome/OutcomeNotices.h"
#include "apps/studio/outcome/OutcomeRows.h"
#include "apps/studio/texts/ToolPatterns.h"
#include "apps/studio/window/Languages.h"
#include "tests/studio/OutcomeSources.h"

#include <QDirIterator>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

namespace Vexlor::Studio
{

namespace
{

using Apps::FileOf;

/// A German window's texts, as long as it lives.
class GermanTexts : public testing::Test
{
protected:
    ~GermanTexts() override { QLocale::setDefault(m_before); }

private:
    QLocale m_before;
    Languages m_german{"de"};
};

struct Told
{
    const char* name;
    const char* english;
    const char* german;
};

constexpr Told kTold[] = {
    {"Whole", "chosen in the preset", "in der Vorgabe gewählt"},
    {"Bitrate", "8.00 Mb/s", "8,00 Mbit/s"},
    {"FrameRate", "29.97 fps", "29,97 fps"},
    {"WithNumber", "snapped by the codec from 44.1 kHz", "vom Codec angepasst, statt 44,1 kHz"},
    {"Nested", "bounded by the preset (1.00 Mb/s to 2.00 Mb/s) at High (the source's grade)",
     "von der Vorgabe begrenzt (1,00 Mbit/s bis 2,00 Mbit/s) bei Hoch (der Stufe der Quelle)"},
    {"BothSides", "bounded by the preset (at most 640 wide and at most 480 high) from 1920 x 1080",
     "von der Vorgabe begrenzt (höchstens 640 breit und höchstens 480 hoch), statt 1920 x 1080"},
    {"OneSide", "bounded by the preset (at least 1920 wide)",
     "von der Vorgabe begrenzt (mindestens 1920 breit)"},
    {"Ratio", "lower the size to 1280 x 720 and the bitrate to 5.00 Mb/s (56 % less)",
     "die Maße auf 1280 x 720 und die Bitrate auf 5,00 Mbit/s senken (56 % weniger)"},
    {"BehindFile", "/a/b.json: is write-protected", "/a/b.json: ist schreibgeschützt"},
    {"BehindPlace", "b.json:3:7: missing closing quote",
     "b.json:3:7: das schließende Anführungszeichen fehlt"},
    {"BehindColonInFile", "a: b.json: is empty", "a: b.json: ist leer"},
    {"Format", "YUV 4:2:2 10-bit with alpha", "YUV 4:2:2 10 Bit mit Alpha"},
    {"ProfileOfGradesName", "snapped to that of the profile High", "an das Profil High angepasst"},
    {"NameInQuotes", "no codec here is \"a still picture\"", "kein Codec heißt hier \"a still picture\""},
    {"Level", "4.1", "4.1"},
    {"Unlisted", "Sorenson Spark", "Sorenson Spark"},
    {"Nothing", "", ""},
};

class GermanText : public GermanTexts, public testing::WithParamInterface<Told>
{
};

TEST_P(GermanText, IsTheToolsText)
{
    EXPECT_EQ(GetParam().german, ToolText(GetParam().english).toStdString());
}

INSTANTIATE_TEST_SUITE_P(Texts, GermanText, testing::ValuesIn(kTold),
                         [](const auto& test) { return test.param.name; });

/// The words of the text that are English and no others'.
QStringList EnglishIn(const QString& text)
{
    static const QRegularExpression s_english(QStringLiteral(
        "\\b(the|of|is|are|from|to|at|by|for|as|and|no|with|than|chosen|taken|left|preset|bitrate|"
        "above|lower|source|codec's|known|here|fps|Mb/s|kb/s)\\b|\\d\\.\\d+ [kM]"));
    QStringList found;
    for (auto matches = s_english.globalMatch(text); matches.hasNext();)
        found << matches.next().captured();
    found.removeAll("fps"); // is German, too
    return found;
}

/// What a window tells of that source in every preset of the catalogue.
QStringList ToldOf(const VXMediaFile& media)
{
    QStringList told;
    for (const auto& entry : Tool::LoadCatalogue({}).entries)
    {
        const auto outcome = OutcomeOf(media, "clip.mov", *entry.preset);
        for (const auto& row : OutcomeRowsOf(media, &outcome))
            told << row.name << row.source << row.output << row.why;
        told << NoticesHtml(outcome, {}) << ToolText(outcome.obstacle);
    }
    told.removeDuplicates();
    return told;
}

TEST_F(GermanTexts, OfEveryPresetHoldNoEnglish)
{
    const VXMediaFile sources[] = {
        MediaOf(FileOf(Apps::VideoSource{}, Apps::AudioSource{})),
        MediaOf(FileOf(Apps::VideoSource{.width = 3840, .height = 2160, .num = 60, .bitrate = 90'000'000})),
        MediaOf(FileOf(Apps::VideoSource{
            .width = 720, .height = 576, .num = 0, .bitrate = 0, .aspectNum = 16, .aspectDen = 15})),
        MediaOf(FileOf(Apps::AudioSource{.sampleRate = 96'000, .layout = 0x3F, .bitrate = 0})),
    };
    for (const auto& source : sources)
        for (const auto& text : ToldOf(source))
            EXPECT_EQ(QStringList(), EnglishIn(text)) << text.toStdString();
}

TEST(ToolText, IsTheToolsOwnInEnglish)
{
    for (const auto& patterns : ToolPatterns())
        for (const auto& pattern : patterns)
            EXPECT_EQ(pattern.text, ToolText(pattern.text).toStdString());
}

TEST(TypedText, IsAsItWasTypedWherePointsAreWritten) { EXPECT_EQ("1,5 Mb/s", TypedText("1,5 Mb/s")); }

TEST_F(GermanTexts, AreReadBack) { EXPECT_EQ("44.1 kHz 1.5 Mb/s", TypedText("44,1 kHz 1,5 Mbit/s")); }

/// The texts of sources that people read: of words, not of names alone. Texts that are one behind the other
/// in the source are one.
QStringList TextsIn(const QString& path)
{
    static const QRegularExpression s_notCode(QStringLiteral("^\\s*#.*$|//.*$|'\"'"),
                                              QRegularExpression::MultilineOption);
    static const QRegularExpression s_next(QStringLiteral("\"\\s*\\n\\s*\""));
    static const QRegularExpression s_text(QStringLiteral("\"((?:[^\"\\\\\\n]|\\\\.)*)\""));
    static const QRegularExpression s_behindName(QStringLiteral("^: "));
    static const QRegularExpression s_words(
        QStringLiteral("^[a-z0-9' ;,:()-].*[a-z] [a-z]|^ [a-z ]+$|[a-z]{2,} $"));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    auto source = QString::fromUtf8(file.readAll());
    source.remove(s_notCode).remove(s_next);
    QStringList texts;
    for (auto matches = s_text.globalMatch(source); matches.hasNext();)
        if (auto text = matches.next().captured(1); s_words.match(text).hasMatch())
            texts << text.replace("\\\"", "\"").remove(s_behindName);
    return texts;
}

/// The piece is one of the pattern's between what it leaves open, or whole words at an end of one.
bool HasPiece(const QString& pattern, const QString& piece)
{
    const auto text = QRegularExpression::escape(piece);
    const QRegularExpression whole(
        QStringLiteral("(^|%\\d|\")%1($|%\\d|\"|\\b)|(^|%\\d|\"|[)]|\\b)%1($|%\\d|\")").arg(text));
    return whole.match(pattern).hasMatch();
}

bool IsOfPattern(const QString& text)
{
    for (const auto& patterns : ToolPatterns())
        for (const auto& pattern : patterns)
            if (HasPiece(QString::fromUtf8(pattern.text), text))
                return true;
    return false;
}

// What the tools tell on the command line alone.
const QStringList kOthers{"CatalogueMatch.cpp",   "SizeEstimate.cpp",    "SizePlan.cpp",
                          "DocumentAddition.cpp", "DocumentChanges.cpp", "DocumentEdit.cpp",
                          "DocumentNames.cpp",    "DocumentSchema.cpp",  "PresetText.cpp",
                          "PresetCodecs.cpp",     "PresetValues.cpp"};

/// What nobody tells in words.
bool IsBare(const QString& text) { return text.trimmed().size() < 2; }

QString MissingIn(const QString& path)
{
    QString missing;
    for (const auto& text : TextsIn(path))
        if (!IsBare(text) && !IsOfPattern(text))
            missing += path + ": " + text + '\n';
    return missing;
}

TEST(ToolPatterns, StandOnce)
{
    std::map<std::string, int> counts;
    for (const auto& patterns : ToolPatterns())
        for (const auto& pattern : patterns)
            EXPECT_EQ(1, ++counts[pattern.text]) << pattern.text;
}

TEST(ToolPatterns, HaveWhatTheToolsTell)
{
    for (const auto* folder : {"match", "convert", "document", "import"})
        for (QDirIterator files(QStringLiteral(VX_SOURCE_DIR "/apps/host/") + folder, {"*.cpp"});
             files.hasNext();)
        {
            const auto path = files.next();
            if (!kOthers.contains(files.fileName()))
            {
                EXPECT_EQ("", MissingIn(path).toStdString());
            }
        }
}

class BeneathTheTools : public testing::TestWithParam<const char*>
{
};

TEST_P(BeneathTheTools, NothingIsToldThatIsNoPattern)
{
    EXPECT_EQ("", MissingIn(QStringLiteral(VX_SOURCE_DIR "/") + GetParam()).toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Files, BeneathTheTools,
    testing::Values("runtime/foundation/VXAtomicFile.cpp", "runtime/foundation/VXJsonFile.cpp",
                    "runtime/foundation/VXJsonScan.cpp", "runtime/mediacodecs/BoundedFile.cpp",
                    "runtime/mediacodecs/EncoderSetup.cpp", "runtime/mediacodecs/MediaInput.cpp",
                    "runtime/mediacodecs/StreamLabels.cpp", "runtime/mediacodecs/VXMediaFile.cpp",
                    "apps/studio/document/DocumentContent.cpp", "apps/studio/document/DocumentText.cpp",
                    "apps/studio/document/RecentStore.cpp"),
    [](const auto& test) { return QFileInfo(QString(test.param)).baseName().toStdString(); });

} // namespace

} // namespace Vexlor::Studio
