#include "apps/studio/outcome/DrawingColors.h"

#include <QPalette>

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor::Studio;

struct PaletteCase
{
    const char* name;
    QRgb window;
    QRgb text;
    QRgb highlight;
};

class Palettes : public testing::TestWithParam<PaletteCase>
{
protected:
    QPalette Palette() const
    {
        QPalette palette;
        palette.setColor(QPalette::Window, QColor(GetParam().window));
        palette.setColor(QPalette::WindowText, QColor(GetParam().text));
        palette.setColor(QPalette::Highlight, QColor(GetParam().highlight));
        return palette;
    }
};

TEST_P(Palettes, HaveTextThatCanBeRead)
{
    const auto colors = DrawingColors::Of(Palette());
    EXPECT_GE(Contrast(colors.text, GetParam().window), 4.5);
    EXPECT_GE(Contrast(colors.faint, GetParam().window), 4.5);
}

TEST_P(Palettes, HaveLinesThatCanBeSeen)
{
    const auto colors = DrawingColors::Of(Palette());
    for (const auto& color : {colors.line, colors.output, colors.hatch})
        EXPECT_GE(Contrast(color, GetParam().window), 3);
}

// A highlight as light, or as dark, as the window is what a theme may have.
constexpr PaletteCase kPalettes[] = {{"Light", 0xFFEFEFEF, 0xFF000000, 0xFF308CC6},
                                     {"Dark", 0xFF2D2D30, 0xFFE6E6E6, 0xFF3D82D6},
                                     {"PaleHighlight", 0xFFEFEFEF, 0xFF000000, 0xFFDDEEFF},
                                     {"DarkHighlight", 0xFF2D2D30, 0xFFE6E6E6, 0xFF202040},
                                     {"HighContrast", 0xFF000000, 0xFFFFFFFF, 0xFFFFFF00}};

INSTANTIATE_TEST_SUITE_P(Drawings, Palettes, testing::ValuesIn(kPalettes),
                         [](const auto& test) { return test.param.name; });

TEST(Contrast, GoesFromOneToTwentyOne)
{
    EXPECT_NEAR(21, Contrast(Qt::black, Qt::white), 1e-6);
    EXPECT_NEAR(1, Contrast(Qt::red, Qt::red), 1e-6);
}

} // namespace
