#include "Themes.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

#include <array>

namespace Vexlor::Studio
{

namespace
{

struct Colour
{
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

// Text on its ground has a contrast of at least 7 : 1, placeholders and disabled text of 4.5 : 1, in both.
constexpr std::array kColours{
    Colour{QPalette::Window, 0xFFEFF0F1, 0xFF25282C},
    Colour{QPalette::WindowText, 0xFF1B1E21, 0xFFEDEFF1},
    Colour{QPalette::Base, 0xFFFFFFFF, 0xFF1B1D20},
    Colour{QPalette::AlternateBase, 0xFFF5F6F7, 0xFF212428},
    Colour{QPalette::Text, 0xFF1B1E21, 0xFFEDEFF1},
    Colour{QPalette::Button, 0xFFEFF0F1, 0xFF31353A},
    Colour{QPalette::ButtonText, 0xFF1B1E21, 0xFFEDEFF1},
    Colour{QPalette::BrightText, 0xFFB3261E, 0xFFFF8A80},
    Colour{QPalette::ToolTipBase, 0xFFFFF4D6, 0xFF4A4023},
    Colour{QPalette::ToolTipText, 0xFF1B1E21, 0xFFFFF4D6},
    Colour{QPalette::PlaceholderText, 0xFF63686D, 0xFF9DA3A9},
    Colour{QPalette::Highlight, 0xFF1F65B5, 0xFF2F6FB7},
    Colour{QPalette::HighlightedText, 0xFFFFFFFF, 0xFFFFFFFF},
    Colour{QPalette::Link, 0xFF1456A0, 0xFF7CB7F5},
    Colour{QPalette::LinkVisited, 0xFF6B3FA0, 0xFFC4A3F0},
    Colour{QPalette::Light, 0xFFFFFFFF, 0xFF3C4147},
    Colour{QPalette::Midlight, 0xFFF7F7F8, 0xFF34383D},
    Colour{QPalette::Mid, 0xFFB9BDC1, 0xFF4A5057},
    Colour{QPalette::Dark, 0xFF8D9297, 0xFF16181A},
    Colour{QPalette::Shadow, 0xFF53585D, 0xFF0C0D0E},
};
constexpr std::array kFaded{QPalette::WindowText, QPalette::Text, QPalette::ButtonText};
constexpr QRgb kFadedLight = 0xFF6C7176;
constexpr QRgb kFadedDark = 0xFF8F959B;

QPalette PaletteOf(bool isDark)
{
    QPalette palette;
    for (const auto& colour : kColours)
        palette.setColor(colour.role, QColor::fromRgb(isDark ? colour.dark : colour.light));
    for (const auto role : kFaded)
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(isDark ? kFadedDark : kFadedLight));
    return palette;
}

} // namespace

Themes::Themes() : m_systemStyle(QApplication::style()->name()) {}

void Themes::Use(Theme theme) const
{
    const bool isSystem = theme == Theme::System;
    QApplication::setStyle(isSystem ? m_systemStyle : QStringLiteral("fusion"));
    // An empty palette is the system's, and follows it.
    QApplication::setPalette(isSystem ? QPalette() : PaletteOf(theme == Theme::Dark));
}

Theme Themes::ThemeOf(const QString& name)
{
    return name == "light" ? Theme::Light : name == "dark" ? Theme::Dark : Theme::System;
}

QString Themes::NameOf(Theme theme)
{
    return theme == Theme::Light ? "light" : theme == Theme::Dark ? "dark" : "system";
}

} // namespace Vexlor::Studio
