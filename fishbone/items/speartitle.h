// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class SpearCompanions;
class SpearItem;
class SpearStyle;

/** The title of a spear, and how much of it its text box shows. */
class SpearTitle
{
public:
    /** @p text as the title of @p spear; show() brings it into the box that @p companions has. */
    SpearTitle(SpearItem &spear, const SpearCompanions &companions, const QString &text);

    /** The full title. */
    const QString &text() const { return m_text; }
    /** See SpearItem::textDisplay(). */
    const QString &shownText() const { return m_shownText; }
    /** Sets title and tool tip. */
    void setText(const QString &text);
    /** Brings the text box in line with the title, @p style and the spear's state. */
    void show(const SpearStyle &style);

private:
    Q_DISABLE_COPY(SpearTitle)

    void fillBox(const SpearStyle &style, int length);
    void noteShown(int length);

    SpearItem &m_spear;
    const SpearCompanions &m_companions;
    QString m_text;
    QString m_shownText;
};
