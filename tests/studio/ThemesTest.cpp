#include "apps/studio/window/Themes.h"
#include "apps/studio/outcome/DrawingColors.h"

#include <QApplication>
#include <QPalette>

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor::Studio;

class ThemesTest : public testing::TestWithParam<Theme>
{
protected:
    void TearDown() override { themes.Use(Theme::System); }

    Themes themes;
};

TEST_P(ThemesTest, HaveTextThatCanBeRead)
{
    themes.Use(GetParam());
    const auto palette = QApplication::palette();
    const auto contrast = [&palette](QPalette::ColorRole text, QPalette::ColorRole ground)
    { return Contrast(palette.color(text), palette.color(ground)); };
    EXPECT_GE(contrast(QPalette::Text, QPalette::Base), 7);
    EXPECT_GE(contrast(QPalette::WindowText, QPalette::Window), 7);
    EXPECT_GE(contrast(QPalette::ButtonText, QPalette::Button), 7);
    EXPECT_GE(contrast(QPalette::ToolTipText, QPalette::ToolTipBase), 7);
    EXPECT_GE(contrast(QPalette::HighlightedText, QPalette::Highlight), 4.5);
    EXPECT_GE(contrast(QPalette::PlaceholderText, QPalette::Base), 4.5);
    EXPECT_GE(contrast(QPalette::Link, QPalette::Window), 4.5);
}

INSTANTIATE_TEST_SUITE_P(Ours, ThemesTest, testing::Values(Theme::Light, Theme::Dark));

TEST(Themes, AreKnownByTheirNames)
{
    for (const auto theme : {Theme::System, Theme::Light, Theme::Dark})
        EXPECT_EQ(theme, Themes::ThemeOf(Themes::NameOf(theme)));
    EXPECT_EQ(Theme::System, Themes::ThemeOf("pink"));
}

} // namespace
