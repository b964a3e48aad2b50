#include "apps/studio/window/Themes.h"

#include <QApplication>
#include <QPalette>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

using namespace Vexlor::Studio;

double Luminance(const QColor& colour)
{
    const auto linear = [](double part)
    { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// As the guidelines for accessible content reckon it, from 1 to 21.
double Contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

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
