// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaMethod>
#include <QPointer>
#include <QRandomGenerator>
#include <QString>
#include <QVector>

#include <tests/reliability/randomlistener.h>
#include <tests/reliability/randomworld.h>

/** Does at random whatever a host and its user can do. */
class RandomUser
{
    Q_DISABLE_COPY(RandomUser)

public:
    RandomUser(RandomWorld &world, QRandomGenerator &random);

    /** Does one thing; its name. */
    QString act();

    /**
     * Does one thing that the history takes back, and takes it back. What differs then; empty when
     * nothing does.
     */
    QString undoFault();

    /**
     * How often each public slot of the editor was called; for the proof that none was left out.
     */
    const QHash<QByteArray, int> &calledSlots() const { return m_calls; }
    /** How often a listener did something while a slot ran. */
    int reactions() const { return m_reactions; }

private:
    QString callSlot();
    bool call(FishEditor &editor, const QMetaMethod &slot);
    QString useMouse();
    QString useKeys();
    QString drop();
    QString useModel();
    QString changeWorld();
    void moveSpears(FishEditor &editor);
    void selectSome(FishEditor &editor);
    QPoint anyPoint(FishEditor &editor);
    int anyNumber();
    QString anyText();

    RandomWorld &m_world;
    QRandomGenerator &m_random;
    QVector<QMetaMethod> m_slots;
    RandomListener m_listener;
    QHash<QByteArray, int> m_calls;
    int m_reactions = 0;
    QPointer<FishEditor> m_pressed; ///< where a button of the mouse is held
};
