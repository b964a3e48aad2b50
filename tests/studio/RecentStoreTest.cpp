#include "apps/studio/document/RecentStore.h"
#include "apps/studio/document/RecentPresets.h"

#include "apps/host/Failure.h"

#include "IVXCodecPreset.h"
#include "IVXFormatPreset.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

std::shared_ptr<IVXFormatPreset> Named(const std::string& name, const char* container = "WAV")
{
    auto preset = IVXFormatPreset::MallocFormatPreset(container, "");
    preset->SetName(name);
    return preset;
}

std::string NamesOf(const QString& document)
{
    std::string names;
    for (const auto& preset : RecentStore::PresetsOf(document))
        names += preset->Name() + ' ';
    return names;
}

class RecentStoreTest : public testing::Test
{
protected:
    RecentStoreTest() { QFile::remove(RecentStore::Path()); }
    ~RecentStoreTest() override { QFile::remove(RecentStore::Path()); }

    static void Fill(const QByteArray& text)
    {
        QDir().mkpath(QFileInfo(RecentStore::Path()).path());
        QFile file(RecentStore::Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    static QByteArray Text()
    {
        QFile file(RecentStore::Path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(RecentStoreTest, HasNothingWhereThereIsNoFile)
{
    EXPECT_EQ("", NamesOf("/a.json"));
    RecentStore::Forget("/a.json");
    EXPECT_FALSE(QFileInfo::exists(RecentStore::Path()));
}

TEST_F(RecentStoreTest, HasTheNewestPresetFirst)
{
    RecentStore::Note("/a.json", *Named("1"));
    RecentStore::Note("/a.json", *Named("2"));
    EXPECT_EQ("2 1 ", NamesOf("/a.json"));
}

TEST_F(RecentStoreTest, HasNothingTwice)
{
    for (const auto* name : {"1", "2", "1"})
        RecentStore::Note("/a.json", *Named(name));
    EXPECT_EQ("1 2 ", NamesOf("/a.json"));
}

TEST_F(RecentStoreTest, TellsPresetsOfOneNameApartByTheirContainers)
{
    for (const auto* container : {"WAV", "MP3"})
        RecentStore::Note("/a.json", *Named("1", container));
    EXPECT_EQ("1 1 ", NamesOf("/a.json"));
}

TEST_F(RecentStoreTest, KeepsDocumentsAndTheBuiltInPresetsApart)
{
    RecentStore::Note("/a.json", *Named("a"));
    RecentStore::Note("", *Named("built in"));
    EXPECT_EQ("a ", NamesOf("/a.json"));
    EXPECT_EQ("built in ", NamesOf(""));
}

TEST_F(RecentStoreTest, KeepsSoManyPresetsOfADocument)
{
    for (int i = 0; i < kMostRecentPresets + 3; ++i)
        RecentStore::Note("/a.json", *Named(std::to_string(i)));
    const auto presets = RecentStore::PresetsOf("/a.json");
    ASSERT_EQ(std::size_t{kMostRecentPresets}, presets.size());
    EXPECT_EQ("3", presets.back()->Name());
}

TEST_F(RecentStoreTest, KeepsTheDocumentsThatWereUsedLast)
{
    RecentStore::Note("/first.json", *Named("1"));
    for (int i = 1; i < RecentStore::kMostDocuments; ++i)
        RecentStore::Note(QString::number(i), *Named("1"));
    EXPECT_EQ("1 ", NamesOf("/first.json"));
    RecentStore::Note("/one more.json", *Named("1"));
    EXPECT_EQ("", NamesOf("/first.json"));
    EXPECT_EQ("1 ", NamesOf("1"));
}

TEST_F(RecentStoreTest, ForgetsADocument)
{
    RecentStore::Note("/a.json", *Named("a"));
    RecentStore::Note("/b.json", *Named("b"));
    RecentStore::Forget("/a.json");
    EXPECT_EQ("", NamesOf("/a.json"));
    EXPECT_EQ("b ", NamesOf("/b.json"));
}

TEST_F(RecentStoreTest, KeepsPresetsWhole)
{
    const auto preset = Named("\"quoted\" \xC3\xA4\n", "MP4");
    preset->SetMaxWidth(77);
    preset->VideoCodecPreset(1)->SetIndexForQualityPresets(1);
    RecentStore::Note("/\"a\".json", *preset);
    const auto kept = RecentStore::PresetsOf("/\"a\".json");
    ASSERT_EQ(1U, kept.size());
    EXPECT_EQ(preset->Name(), kept.front()->Name());
    EXPECT_EQ(77, kept.front()->MaxWidth());
    EXPECT_EQ(1, kept.front()->VideoCodecPreset(1)->IndexForQualityPresets());
}

TEST_F(RecentStoreTest, LeavesOutWhatIsNoPreset)
{
    Fill(R"({"documents": [7, {"path": "/a.json", "presets": [null, 5, "x", [], {}, {"name": "a"},
         {"name": "b", "formatName": "WAV", "maxWidth": "wide"}, {"formatName": "WAV"}]}, {"path": "/b.json"}]})");
    EXPECT_EQ("b ", NamesOf("/a.json"));
    EXPECT_EQ("", NamesOf("/b.json"));
}

TEST_F(RecentStoreTest, TakesNoMorePresetsThanItKeeps)
{
    QByteArray presets;
    for (int i = 0; i < 1000; ++i)
        presets += QByteArray(i == 0 ? "" : ",") + R"({"name": ")" + QByteArray::number(i) +
                   R"(", "formatName": "WAV"})";
    Fill(R"({"documents": [{"path": "/a.json", "presets": [)" + presets + "]}]}");
    EXPECT_EQ(std::size_t{kMostRecentPresets}, RecentStore::PresetsOf("/a.json").size());
}

TEST_F(RecentStoreTest, RefusesAFolderInPlaceOfTheFile)
{
    QDir().mkpath(RecentStore::Path());
    EXPECT_THROW(RecentStore::Note("/a.json", *Named("a")), Tool::Failure);
    QDir().rmdir(RecentStore::Path());
}

/// Contents that are no such file.
class RecentStoreHostile : public RecentStoreTest, public testing::WithParamInterface<QByteArray>
{
};

TEST_P(RecentStoreHostile, IsToldOfAndStaysAsItIs)
{
    Fill(GetParam());
    EXPECT_THROW(RecentStore::PresetsOf("/a.json"), Tool::Failure);
    EXPECT_THROW(RecentStore::Note("/a.json", *Named("a")), Tool::Failure);
    EXPECT_THROW(RecentStore::Forget("/a.json"), Tool::Failure);
    EXPECT_EQ(GetParam(), Text());
}

INSTANTIATE_TEST_SUITE_P(Texts, RecentStoreHostile,
                         testing::Values(QByteArray(""), QByteArray("{"), QByteArray("[]"), QByteArray("7"),
                                         QByteArray("{}"), QByteArray(R"({"documents": 5})"),
                                         QByteArray(R"({"documents": {"path": "/a.json"}})"),
                                         QByteArray("\xFF\xFE\x00", 3), QByteArray(100'000, '['),
                                         QByteArray((16 << 20) + 1, ' ')));

} // namespace
