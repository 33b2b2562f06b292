// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QRandomGenerator>

#include <memory>

class FishEditor;
class RandomWorld;

/**
 * Listens to an editor and its model during one call of the library, and at the first signal that
 * it takes does anything that a host may do.
 */
class RandomListener
{
    Q_DISABLE_COPY(RandomListener)

public:
    RandomListener(RandomWorld &world, QRandomGenerator &random);
    ~RandomListener();

    /** From now on, until disarm(). */
    void arm(FishEditor &editor);
    /** Whether it has done something since arm(). */
    bool disarm();

private:
    /** Where a signal comes: between the announcement of a change and the change, or not. */
    enum class When { Within, Outside };

    template <typename Sender, typename Signal>
    void hear(Sender *sender, Signal signal, When when);
    void react(When when);

    RandomWorld &m_world;
    QRandomGenerator &m_random;
    std::unique_ptr<QObject> m_ear;
    int m_signalsToPass = 0;
    bool m_hasReacted = false;
};
