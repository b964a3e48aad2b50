#pragma once

#include <QString>

namespace Vexlor::Studio
{

enum class Theme
{
    System,
    Light,
    Dark,
};

/// The colours of the whole program.
class Themes
{
public:
    /// Keeps the style that the system has set, which Theme::System brings back. Made after the QApplication.
    Themes();

    void Use(Theme theme) const;

    /// "light", "dark", anything else is the system's.
    static Theme ThemeOf(const QString& name);
    static QString NameOf(Theme theme);

private:
    QString m_systemStyle;
};

} // namespace Vexlor::Studio
