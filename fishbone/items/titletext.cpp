// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/titletext.h>

int TitleText::shownLength(const QString &title, int count)
{
    if (count < 1 || count >= title.length())
        return -1;
    const bool splitsPair =
        title.at(count - 1).isHighSurrogate() && title.at(count).isLowSurrogate();
    return splitsPair ? count - 1 : count;
}

QString TitleText::withoutCounts(const QString &text)
{
    for (int i = text.indexOf(QLatin1Char('(')); i >= 0;
         i = text.indexOf(QLatin1Char('('), i + 1)) {
        const ushort next = i + 1 < text.length() ? text.at(i + 1).unicode() : 0;
        if (next >= '0' && next <= '9')
            return text.left(i);
    }
    return text;
}
