#pragma once

#include "apps/host/Text.h"

#include <QString>
#include <QTextDocument>

namespace Vexlor::Studio
{

/// A text that comes from the library, a document or a file, as it may be shown: on one line, without what
/// would steer a terminal.
inline QString ShownText(std::string_view text) { return QString::fromStdString(Tool::OneLine(text)); }

/// A text for tool tips and questions, which take nothing in it for markup.
inline QString AsPlainText(const QString& text)
{
    return Qt::mightBeRichText(text) ? "<span>" + text.toHtmlEscaped() + "</span>" : text;
}

/// A text as an entry of a menu: on one line, not too long, without a key of its own.
inline QString MenuText(const QString& text)
{
    constexpr int kLongest = 60;
    auto line = ShownText(text.toStdString());
    if (line.size() > kLongest)
        line = line.left(kLongest - (line.at(kLongest - 1).isHighSurrogate() ? 1 : 0)) + QChar(0x2026);
    return line.replace('&', "&&");
}

} // namespace Vexlor::Studio
