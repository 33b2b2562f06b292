// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

#include <fishbone/items/spearpointer.h>

class QGraphicsItem;

/**
 * The spears that are moved with the mouse, from a press to the release. What is moved is faded. A
 * spear that dies meanwhile is forgotten.
 */
class SpearMove
{
public:
    /** The button was pressed; what it selects follows with begin(). */
    void press();
    /** Whether the button is down. */
    bool isPressed() const { return m_isPressed; }
    /** What the press has selected, in document order, and the items around the mouse. */
    void begin(const QList<QGraphicsItem *> &selection, const QList<QGraphicsItem *> &around);
    /** Nothing is faded any more. */
    void restore();
    /** The button is up. */
    void release();

    /** Whether anything was selected at the press. */
    bool hasSelection() const { return !m_selected.isEmpty(); }
    /** What was selected at the press and still lives. */
    QList<SpearItem *> selection() const;
    /** The selected spear that was under the mouse; null when there was none. */
    SpearItem *pressedSpear() const { return m_pressedSpear.get(); }
    /** The lowest spear of @p around that is not moved itself; null when there is none. */
    SpearItem *candidate(const QList<QGraphicsItem *> &around) const;
    /** Whether @p target, which may be null, stands below what is moved. */
    bool isInto(const SpearItem *target) const;

private:
    QList<SpearPointer> m_selected;
    QList<SpearPointer> m_moving; ///< those of them without a selected ancestor
    SpearPointer m_pressedSpear;
    bool m_isPressed = false;
};
