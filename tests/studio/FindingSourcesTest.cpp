#include "apps/studio/findings/FindingSources.h"
#include "apps/studio/findings/FindingsModel.h"
#include "apps/studio/findings/FindingsPane.h"

#include "apps/host/import/Import.h"
#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/document/TreeEditor.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

CheckResult Check(const StudioDocument& document) { return CheckPlan(document.Plan(), *document.Basis()); }

TEST(FindingSources, FindNothingInTheBuiltInPresets)
{
    const StudioDocument document;
    const auto result = Check(document);
    EXPECT_TRUE(result.findings.empty());
    EXPECT_GT(result.presets, 50);
}

TEST(FindingSources, TellWhichPresetAFindingIsAbout)
{
    StudioDocument document;
    const auto preset = document.Root()->FindChild("Video")->GetFormatPreset(2);
    document.EditPreset(preset, "Bounds",
                        [](IVXFormatPreset& changed)
                        {
                            changed.SetMaxWidth(100);
                            changed.SetMinWidth(200);
                        });
    const auto findings = FindingTexts::Of(Check(document), document);
    ASSERT_FALSE(findings.empty());
    EXPECT_EQ(preset, findings.front().item.preset);
}

TEST(FindingSources, TellWhichPresetAnImportIsAbout)
{
    StudioDocument document;
    const auto import = Tool::ImportPresets("a.json", R"({"PresetList": [
        {"PresetName": "One", "FileFormat": "av_mp4", "VideoEncoder": "x264", "VideoTune": "film"}]})");
    const auto presets = TreeEditor(document).AddAll(*import.root, "Import");
    const auto findings = FindingTexts::Of(import, presets);
    ASSERT_EQ(1U, presets.size());
    ASSERT_FALSE(findings.empty());
    EXPECT_EQ(presets.front(), findings.front().item);
}

TEST(FindingsModel, IsAModel)
{
    FindingsModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.SetFindings({{Finding::Kind::Error, "here", "wrong"}, {Finding::Kind::Note, "there", "odd"}});
    EXPECT_EQ(2, model.rowCount());
    EXPECT_EQ("there", model.index(1, FindingsModel::WhereColumn).data().toString());
}

TEST(FindingsPane, LeadsToWhatIsChosen)
{
    FindingsPane pane;
    pane.resize(600, 200);
    pane.show();
    const QSignalSpy spy(&pane, &FindingsPane::Chosen);
    const TreeItem item{{}, IVXFormatPreset::MallocFormatPreset("WAV", "")};
    pane.Show("two", {{Finding::Kind::Error, "here", "wrong", item}, {Finding::Kind::Note, "there", "odd"}});
    auto& view = *pane.findChild<QTableView*>("findings");
    const auto place = view.visualRect(view.model()->index(0, 1)).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    ASSERT_EQ(1, spy.count());
    EXPECT_EQ(item, spy.at(0).at(0).value<TreeItem>());
}

TEST(FindingSources, TellPresetsApartWhoseNamesBeginAlike)
{
    StudioDocument document;
    Tool::Import import;
    import.presets = {"Fast", "Fast Two"};
    import.findings.resize(1);
    import.findings[0].path = "Fast Two";
    const std::vector<TreeItem> presets{{{}, document.Root()->FindChild("Video")->GetFormatPreset(0)},
                                        {{}, document.Root()->FindChild("Video")->GetFormatPreset(1)}};
    EXPECT_EQ(presets[1], FindingTexts::Of(import, presets).front().item);
}

} // namespace
