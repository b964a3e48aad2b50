#pragma once

#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/outcome/OutcomeModel.h"
#include "apps/studio/outcome/OutcomePane.h"
#include "tests/media/MediaMaker.h"
#include "tests/studio/OutcomeSources.h"
#include "tests/studio/Patience.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace Vexlor::Studio
{

/// A pane that is shown, as a window would have it.
class OutcomePaneTest : public testing::Test
{
protected:
    OutcomePaneTest()
    {
        pane.resize(600, 900);
        pane.show();
    }

    static QString Path(const char* clip) { return QString::fromStdString(Media::Clip(clip)); }

    /// Opens the clip and waits for it.
    void Open(const char* clip) { OpenFile(Path(clip)); }
    void OpenFile(const QString& path)
    {
        QSignalSpy opened(&pane, &OutcomePane::SourceOpened);
        pane.OpenSource(path);
        EXPECT_TRUE(opened.wait(kPatience));
    }

    /// The output's value of that name, of the picture where both have one.
    QString Output(const QString& name) const { return Cell(name, OutcomeModel::Output); }
    QString Cell(const QString& name, OutcomeModel::Column column) const
    {
        const auto* model = pane.findChild<OutcomeModel*>();
        for (int row = 0; row < model->rowCount(); ++row)
            if (model->RowAt(row).name == name)
                return model->index(row, column).data().toString();
        return {};
    }

    template <typename Widget = QWidget>
    Widget* Find(const char* name) const
    {
        return pane.findChild<Widget*>(QLatin1String(name));
    }
    QString Text(const char* label) const { return Find<QLabel>(label)->text(); }
    bool IsShown(const char* name) const { return Find(name)->isVisible(); }
    void Click(const char* button) { QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton); }

    StudioDocument document;
    std::shared_ptr<IVXFormatPreset> preset = PresetOf("MKV", VXCodecID_MPEG4, VXCodecID_AAC);
    OutcomePane pane{document};
};

} // namespace Vexlor::Studio
