#pragma once

#include <QTranslator>

namespace Vexlor::Studio
{

/// The language of the program's texts, while it lives.
class Languages
{
public:
    /// Takes the language of that code, "de", or the system's where it is empty; English where there is no
    /// translation.
    explicit Languages(const QString& code);

private:
    QTranslator m_ours;
    QTranslator m_qt; // of buttons in message boxes
};

} // namespace Vexlor::Studio
