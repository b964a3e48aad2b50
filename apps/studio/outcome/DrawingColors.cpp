#include "DrawingColors.h"

#include <QPalette>

#include <algorithm>
#include <cmath>

namespace Vexlor::Studio
{

namespace
{

constexpr double kOfGraphics = 3;

QColor Mixed(const QColor& one, const QColor& other, double share)
{
    const auto mix = [share](float a, float b) { return static_cast<float>(a + (b - a) * share); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

double Linear(double part) { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }

double Luminance(const QColor& color)
{
    return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

/// The colour, brought towards the text's until it stands out from the ground.
QColor Visible(const QColor& color, const QColor& text, const QColor& ground)
{
    constexpr int kSteps = 10;
    for (int step = 0; step < kSteps; ++step)
        if (const auto mixed = Mixed(color, text, double(step) / kSteps);
            Contrast(mixed, ground) >= kOfGraphics)
            return mixed;
    return text;
}

} // namespace

double Contrast(const QColor& one, const QColor& other)
{
    constexpr double kGlare = 0.05;
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + kGlare) / (dark + kGlare);
}

DrawingColors DrawingColors::Of(const QPalette& palette)
{
    const auto ground = palette.color(QPalette::Window);
    const auto text = palette.color(QPalette::WindowText);
    return {.text = text,
            .faint = Mixed(text, ground, 0.2),
            .line = Mixed(text, ground, 0.35),
            .paper = Mixed(ground, text, 0.12),
            .output = Visible(palette.color(QPalette::Highlight), text, ground),
            .hatch = Mixed(text, ground, 0.35)};
}

} // namespace Vexlor::Studio
