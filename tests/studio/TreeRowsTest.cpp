#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/tree/FaceIcons.h"
#include "apps/studio/tree/FormatFilterModel.h"
#include "apps/studio/tree/FormatTreeModel.h"
#include "apps/studio/tree/TreePane.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QScrollBar>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

#include <set>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

constexpr int kCategories = 100;
constexpr int kPresetsACategory = 200;

/// A model that notes of which rows anything is asked that is shown.
class NotingModel : public FormatTreeModel
{
public:
    using FormatTreeModel::FormatTreeModel;

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::DisplayRole || role == Qt::DecorationRole)
            m_asked.insert({index.internalPointer(), index.row()});
        return FormatTreeModel::data(index, role);
    }

    /// How many rows were asked of since this was asked last.
    int TakeAsked() { return static_cast<int>(std::exchange(m_asked, {}).size()); }

private:
    mutable std::set<std::pair<const void*, int>> m_asked;
};

std::shared_ptr<IVXFormatNode> LargeTree()
{
    auto root = IVXFormatNode::MallocFormatNode(std::shared_ptr<IVXFormatNode>());
    const auto preset = IVXFormatPreset::MallocFormatPreset("WAV", "");
    for (int i = 0; i < kCategories; ++i)
    {
        const auto category = IVXFormatNode::MallocFormatNode(root);
        category->SetName("Category " + std::to_string(i));
        for (int k = 0; k < kPresetsACategory; ++k)
        {
            category->AddFormatPreset(preset->Clone());
            category->LastFormatPreset()->SetName("preset " + std::to_string(i * kPresetsACategory + k));
        }
    }
    return root;
}

/// A pane of 20,000 presets.
class TreeRowsTest : public testing::Test
{
protected:
    TreeRowsTest()
    {
        pane.resize(300, 600);
        pane.show();
        auto* filter = pane.findChild<FormatFilterModel*>();
        filter->setSourceModel(&model);
        document.SetContent({LargeTree(), std::make_shared<DocumentBasis>()}, {});
        Settle();
    }

    void Settle()
    {
        QCoreApplication::processEvents();
        pane.View().viewport()->repaint();
    }

    /// The rows that are seen at most, those that are cut included.
    int RowsAPage() const
    {
        const auto& view = pane.View();
        return view.viewport()->height() / view.sizeHintForRow(0) + 2;
    }

    StudioDocument document;
    FaceIcons icons;
    NotingModel model{document, icons};
    mutable TreePane pane{document, icons};
};

TEST_F(TreeRowsTest, AreBuiltWhereTheyAreSeenAlone)
{
    const int asked = model.TakeAsked();
    EXPECT_GT(asked, 5);
    EXPECT_LE(asked, RowsAPage());
}

TEST_F(TreeRowsTest, AreNotBuiltBecauseTheirCategoriesAreOpened)
{
    model.TakeAsked();
    pane.View().expandAll();
    Settle();
    EXPECT_LE(model.TakeAsked(), RowsAPage());
}

TEST_F(TreeRowsTest, AreBuiltAPageAtATimeWhereOnePages)
{
    pane.View().expandAll();
    Settle();
    auto& bar = *pane.View().verticalScrollBar();
    int pages = 0;
    for (bar.setValue(0); bar.value() < bar.maximum(); ++pages)
    {
        model.TakeAsked();
        bar.setValue(bar.value() + bar.pageStep());
        Settle();
        ASSERT_LE(model.TakeAsked(), RowsAPage()) << pages;
    }
    EXPECT_GT(pages, kCategories * kPresetsACategory / RowsAPage());
}

} // namespace
