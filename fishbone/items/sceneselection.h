// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPointer>
#include <QSet>

class QGraphicsItem;
class QGraphicsScene;
class SelectionState;

/**
 * While one lives, what the library changes of a scene's selection is not told; the end of the last
 * one tells it once. Made where a call comes into the library, before it does anything: who hears
 * of the selection may end whatever the call works on.
 */
class SelectionHold
{
    Q_DISABLE_COPY(SelectionHold)

public:
    /** Holds nothing until add() is called. */
    SelectionHold() = default;
    /** Holds the report of @p scene, which may be null. */
    explicit SelectionHold(QGraphicsScene *scene) { add(scene); }
    ~SelectionHold() { release(); }

    /** Holds the report of one more scene, which may be null or held already. */
    void add(QGraphicsScene *scene);
    /** Ends before the object does. */
    void release();

private:
    QList<QPointer<SelectionState>> m_states;
};

/**
 * Around anything that makes the toolkit change the selection of a scene item by item: deleting,
 * hiding, selecting. The scene's signals are blocked meanwhile; the change is told by the hold that
 * there is, or else at the end of this.
 */
class SelectionSilence
{
    Q_DISABLE_COPY(SelectionSilence)

public:
    /** @p scene may be null. */
    explicit SelectionSilence(QGraphicsScene *scene);
    ~SelectionSilence();

private:
    SelectionHold m_hold; // the first member: the others are gone when it tells
    QPointer<SelectionState> m_state;
    bool m_wasBlocked = false;
    QSet<QGraphicsItem *> m_before; ///< only compared
};
