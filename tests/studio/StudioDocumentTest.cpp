#include "apps/studio/document/StudioDocument.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace
{

using Vexlor::IVXFormatPreset;
using Vexlor::Studio::StudioDocument;

std::shared_ptr<IVXFormatPreset> AnyPreset() { return IVXFormatPreset::MallocFormatPreset("MP4", ""); }

std::function<void(IVXFormatPreset&)> Widest(int pixels)
{
    return [pixels](IVXFormatPreset& preset) { preset.SetMaxWidth(pixels); };
}

TEST(StudioDocument, BeginsWithTheBuiltInCatalogue)
{
    const StudioDocument document;
    EXPECT_GT(document.Root()->ChildCount(), 3);
}

TEST(StudioDocument, EditsAPresetInItsPlace)
{
    StudioDocument document;
    const auto preset = AnyPreset();
    document.EditPreset(preset, "Bounds", Widest(640));
    EXPECT_EQ(640, preset->MaxWidth());
    EXPECT_EQ("Bounds", document.Undo().undoText());
}

TEST(StudioDocument, TakesAnEditBackAndMakesItAgain)
{
    StudioDocument document;
    const auto preset = AnyPreset();
    const auto before = preset->MaxWidth();
    document.EditPreset(preset, "Bounds", Widest(640));
    document.Undo().undo();
    EXPECT_EQ(before, preset->MaxWidth());
    document.Undo().redo();
    EXPECT_EQ(640, preset->MaxWidth());
}

TEST(StudioDocument, TellsOfEachChangeOfAPreset)
{
    StudioDocument document;
    const QSignalSpy spy(&document, &StudioDocument::PresetChanged);
    const auto preset = AnyPreset();
    document.EditPreset(preset, "Bounds", Widest(640));
    document.Undo().undo();
    document.Undo().redo();
    EXPECT_EQ(3, spy.count());
}

TEST(StudioDocument, MakesNoStepOfAnEditThatChangesNothing)
{
    StudioDocument document;
    const auto preset = AnyPreset();
    document.EditPreset(preset, "Bounds", [](IVXFormatPreset&) {});
    EXPECT_EQ(0, document.Undo().count());
}

TEST(StudioDocument, MakesOneStepOfARun)
{
    StudioDocument document;
    const auto preset = AnyPreset();
    for (const int pixels : {6, 64, 640})
        document.EditPreset(preset, "Bounds", Widest(pixels), 7);
    EXPECT_EQ(1, document.Undo().count());
    document.EditPreset(preset, "Bounds", Widest(1), 8);
    EXPECT_EQ(2, document.Undo().count());
}

TEST(StudioDocument, ForgetsARunThatEndsWhereItBegan)
{
    StudioDocument document;
    const auto preset = AnyPreset();
    const auto before = preset->MaxWidth();
    document.EditPreset(preset, "Bounds", Widest(640), 7);
    document.EditPreset(preset, "Bounds", Widest(before), 7);
    EXPECT_EQ(0, document.Undo().count());
}

} // namespace
