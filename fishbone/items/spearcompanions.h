// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <fishbone/items/taskstatusinfo.h>

class QGraphicsItem;
class SpearItem;
class TaskStatusItem;
class TextItem;

/**
 * What stands at a spear: text box, status icon, link icon and expand button. They are made here
 * and nowhere else, but for links and buttons that a host gives the spear. What would show nothing
 * is not made: most subjects have no status, and an icon takes as much as a sixth of a bone.
 */
class SpearCompanions
{
public:
    /** Those of @p spear, which has none before make(). */
    explicit SpearCompanions(SpearItem &spear);

    /** Makes the one that every spear has: the text box. */
    void make();
    /** The text box. */
    TextItem *text() const { return m_text; }
    /** The status icon; made when there is none yet, as it would stand by now. */
    TaskStatusItem *status();
    /** The status icon, null as long as it has shown nothing and nobody has asked for it. */
    TaskStatusItem *madeStatus() const { return m_status; }
    /** The link icon, null for none. */
    QGraphicsItem *link() const { return m_link; }
    /** The expand button, null for none. */
    QGraphicsItem *button() const { return m_button; }

    /** See SpearItem::setLinkItem(). */
    void setLink(QGraphicsItem *item);
    /** See SpearItem::setExpandBuddy(). */
    void setButton(QGraphicsItem *item);
    /** Forgets @p item when it is link or button: it dies or is given to somebody else. */
    void forget(const QGraphicsItem *item);

    /** Stores @p status in the subject, shows it and places the companions anew. */
    void setStatus(int status);
    /** Brings the status icon in line with the subject; a subject without one shows none. */
    void updateStatus();
    /** Brings the link icon in line with the subject; one that is right already stays. */
    void updateLink();
    /** Shows an icon for @p url in place of the one there is. */
    void showLink(const QString &url);
    /** Brings the expand button in line with whether the children are shown, or makes it. */
    void updateButton();
    /** Shows or hides the expand button, as the look has it. */
    void showButton();

    /** Places all of them, as the look has them. */
    void place();
    /** Turns the text box, as the look has it. */
    void turnText();
    /** Gives the icons the size that the look has for them. */
    void scaleIcons();
    /** The boxes of text and button are about to become others. */
    void boxesChange();

    /** Has the processor fetch them. */
    void prefetchAll() const;
    /** Then what they keep apart. */
    void prefetchInsides() const;
    /** And what they keep of those who hear of their positions. */
    void prefetchListeners() const;
    /** Has the processor fetch the text box alone. */
    void prefetchText() const;

private:
    Q_DISABLE_COPY(SpearCompanions)

    void replace(QGraphicsItem *&companion, QGraphicsItem *item);
    void makeStatus();
    void placeText();
    void placeStatus();
    void scaleIcon(QGraphicsItem *icon);

    SpearItem &m_spear;
    TextItem *m_text = nullptr;
    QGraphicsItem *m_link = nullptr;
    QGraphicsItem *m_button = nullptr;
    TaskStatusItem *m_status = nullptr;
    int m_taskStatus = tsUnknown;   ///< of an icon that is not made
    int m_taskProgress = 0;         ///< of it as well
    bool m_isPlaced = false;        ///< at least once
    bool m_hasHiddenStatus = false; ///< as every header does
    bool m_isButtonHidden = false;  ///< by the look
};
