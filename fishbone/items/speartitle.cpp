// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/speartitle.h>

#include <fishbone/items/spearcompanions.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearparts.h>
#include <fishbone/items/textitem.h>
#include <fishbone/items/titletext.h>
#include <fishbone/model/treeitem.h>

SpearTitle::SpearTitle(SpearItem &spear, const SpearCompanions &companions, const QString &text)
    : m_spear(spear)
    , m_companions(companions)
    , m_text(text)
{
}

void SpearTitle::setText(const QString &text)
{
    m_text = text;
    m_spear.setToolTip(text);
    show(*m_spear.style());
    m_spear.update();
}

void SpearTitle::show(const SpearStyle &style)
{
    const int length = TitleText::shownLength(m_text, style.textCount());
    fillBox(style, length);
    noteShown(length);
}

/** Shows @p length characters of the title, -1 for all. */
void SpearTitle::fillBox(const SpearStyle &style, int length)
{
    // This is asked for every bone of every layout: no copy of the font, no look at the letters of
    // a text that is shown already.
    TextItem &box = *m_companions.text();
    const auto showIn = [this, length, &box](const QFont &font) {
        const bool isShown = length < 0 ? box.shows(font, m_text)
                                        : box.shows(font, QStringView(m_text).left(length));
        if (isShown)
            return;
        SpearParts::geometryChanges(m_spear);
        box.showText(font, m_text.left(length));
    };
    if (const QFont *const set = style.textFont(m_spear.textState()))
        showIn(*set);
    else
        showIn(QFont());
}

/** The box goes on showing the counts; only what is reported as the display text goes without. */
void SpearTitle::noteShown(int length)
{
    const TreeItem *const subject = m_spear.treeItem();
    if (subject && subject->isTopVaildItem())
        m_shownText = TitleText::withoutCounts(m_text.left(length));
    else if (length >= 0 && m_shownText != QStringView(m_text).left(length))
        m_shownText = m_text.left(length);
    else if (length < 0 && !m_shownText.isSharedWith(m_text))
        m_shownText = m_text;
}
