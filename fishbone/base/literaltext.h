// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTextDocument>

/**
 * @p text as a label or a message box shows it letter by letter, also where a name in it looks like
 * markup.
 */
inline QString literalText(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}
