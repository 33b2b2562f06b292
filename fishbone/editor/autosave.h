// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <functional>

class QObject;
class QTimer;

/** Saves every so often. */
class Autosave
{
    Q_DISABLE_COPY(Autosave)

public:
    static constexpr int defaultInterval = 30000; ///< milliseconds

    /**
     * Calls @p save, on a timer that is a child of @p owner and lives as long, once start() was
     * called.
     */
    Autosave(QObject *owner, const std::function<void()> &save);

    /** Begins to wait, anew when it waits already; nothing while the interval is 0. */
    void start();
    /** Milliseconds; 0, and whatever is less, for none. Begins to wait anew. */
    void setInterval(int ms);
    /** That number. */
    int interval() const { return m_interval; }

private:
    QTimer *m_timer;
    int m_interval = defaultInterval;
};
