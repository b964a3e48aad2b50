#include "apps/studio/outcome/OutcomeModel.h"
#include "apps/studio/outcome/Outcome.h"
#include "apps/studio/outcome/OutcomeView.h"
#include "tests/studio/OutcomeSources.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace Vexlor::Studio
{

namespace
{

using Apps::AudioSource;
using Apps::FileOf;
using Apps::VideoSource;

VXMediaFile Film() { return MediaOf(FileOf(VideoSource{}, AudioSource{})); }

std::vector<OutcomeRow> RowsOf(const VXMediaFile& media, const IVXFormatPreset& preset)
{
    const auto outcome = OutcomeOf(media, "/clip.mov", preset);
    return OutcomeRowsOf(media, &outcome);
}

std::vector<OutcomeRow> AnyRows(int audio = VXCodecID_AAC)
{
    return RowsOf(Film(), *PresetOf("MP4", VXCodecID_H264, audio));
}

/// The row of that name behind that heading.
OutcomeRow Find(const std::vector<OutcomeRow>& rows, const QString& heading, const QString& name)
{
    bool isBehind = false;
    for (const auto& row : rows)
    {
        if (row.isHeading)
            isBehind = row.name == heading;
        else if (isBehind && row.name == name)
            return row;
    }
    return {};
}

TEST(OutcomeRows, HaveSourceAndOutputWithTheReason)
{
    const auto row = Find(AnyRows(), "Video", "Size");
    EXPECT_EQ("1920 x 1080", row.source);
    EXPECT_EQ("1920 x 1080", row.output);
    EXPECT_EQ("taken from the source", row.why);
    EXPECT_FALSE(row.IsChanged());
}

TEST(OutcomeRows, HaveTheCodecsNames)
{
    const auto row = Find(AnyRows(VXCodecID_MP3), "Sound", "Codec");
    EXPECT_EQ("AAC", row.source);
    EXPECT_EQ("MP3", row.output);
    EXPECT_TRUE(row.IsChanged());
}

TEST(OutcomeRows, HaveTheSourceAloneWithoutAnOutcome)
{
    for (const auto& row : OutcomeRowsOf(Film(), nullptr))
        EXPECT_TRUE(row.output.isEmpty() && row.why.isEmpty()) << row.name.toStdString();
}

TEST(OutcomeRows, SayWhatTheSourceDoesNotHave)
{
    const auto rows = RowsOf(MediaOf(FileOf(AudioSource{})), *PresetOf("MP4", VXCodecID_H264, VXCodecID_AAC));
    EXPECT_TRUE(std::ranges::any_of(rows, [](const OutcomeRow& row)
                                    { return row.name == "Video: none in the source"; }));
}

TEST(OutcomeRows, SayWhatIsLeftOut)
{
    const auto rows = RowsOf(Film(), *IVXFormatPreset::MallocFormatPreset("MP3", ""));
    EXPECT_EQ("left out", Find(rows, "Video", "Codec").output);
}

TEST(OutcomeRows, HaveThePredictedSizeOfTheFile)
{
    const auto row = Find(AnyRows(), "File", "Size of the file");
    EXPECT_EQ("1.00 MB", row.source);
    EXPECT_EQ("about ", row.output.left(6));
}

TEST(OutcomeModel, IsSound)
{
    OutcomeModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.SetRows(AnyRows());
    model.SetRows(AnyRows(VXCodecID_MP3));
    model.SetRows(OutcomeRowsOf(Film(), nullptr));
    model.SetRows({});
    EXPECT_EQ(0, model.rowCount());
}

TEST(OutcomeModel, KeepsItsRowsWhereOnlyValuesChange)
{
    OutcomeModel model;
    const auto preset = PresetOf("MP4", VXCodecID_H264, VXCodecID_AAC);
    model.SetRows(RowsOf(Film(), *preset));
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    preset->SetMaxWidth(640);
    preset->SetMaxHeight(360);
    model.SetRows(RowsOf(Film(), *preset));
    EXPECT_EQ(0, resets.count());
    EXPECT_GT(changes.count(), 0);
}

/// A table that is shown in some width.
class ShownTable
{
public:
    explicit ShownTable(int width) : view(model)
    {
        model.SetRows(AnyRows());
        view.resize(width, 400);
        view.show();
    }

    OutcomeModel model;
    OutcomeView view;
};

TEST(OutcomeView, HasAColumnOfReasonsWhereThereIsRoom)
{
    const ShownTable wide(1000);
    EXPECT_FALSE(wide.view.isColumnHidden(OutcomeModel::Why));
}

TEST(OutcomeView, PutsReasonsBelowTheValuesWhereItIsNarrow)
{
    const ShownTable wide(1000);
    const ShownTable narrow(300);
    EXPECT_TRUE(narrow.view.isColumnHidden(OutcomeModel::Why));
    EXPECT_GT(narrow.view.sizeHint().height(), wide.view.sizeHint().height());
}

TEST(OutcomeView, IsAsHighAsItsRows)
{
    const ShownTable table(600);
    const int last = table.model.rowCount() - 1;
    const int end = table.view.rowViewportPosition(last) + table.view.rowHeight(last);
    EXPECT_GE(table.view.sizeHint().height(), end);
}

TEST(OutcomeView, FillsItsWidthAndNoMore)
{
    for (const int width : {300, 420, 560, 1000})
    {
        const ShownTable table(width);
        int sum = 0;
        for (int column = 0; column < OutcomeModel::ColumnCount; ++column)
            sum += table.view.columnWidth(column);
        EXPECT_EQ(table.view.viewport()->width(), sum);
    }
}

TEST(OutcomeView, CopiesTheSelectedRowsWithTheKeyboard)
{
    ShownTable table(600);
    table.view.setFocus();
    table.view.selectRow(1);
    QTest::keyClick(&table.view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("Container\ta camera's\tMP4\tthe preset's", QApplication::clipboard()->text());
}

TEST(OutcomeView, CopiesEverythingWhereNothingIsSelected)
{
    const ShownTable table(600);
    const auto text = table.view.Text();
    EXPECT_TRUE(text.startsWith("File\nContainer\t"));
    EXPECT_TRUE(text.contains("\nSound\nCodec\tAAC\tAAC\tchosen in the preset\n"));
}

TEST(OutcomeView, TellsWhichRowIsToBeSeen)
{
    ShownTable table(600);
    const QSignalSpy spy(&table.view, &OutcomeView::CurrentMoved);
    QTest::keyClick(&table.view, Qt::Key_Down);
    EXPECT_GT(spy.count(), 0);
}

} // namespace

} // namespace Vexlor::Studio
