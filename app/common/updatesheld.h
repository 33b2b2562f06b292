// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

/** Keeps a window from being painted as long as it lives. */
class UpdatesHeld
{
    Q_DISABLE_COPY(UpdatesHeld)

public:
    /** Of @p window, which may be null. */
    explicit UpdatesHeld(QWidget *window)
        : m_window(window)
    {
        if (m_window)
            m_window->setUpdatesEnabled(false);
    }
    ~UpdatesHeld()
    {
        if (m_window)
            m_window->setUpdatesEnabled(true);
    }

private:
    QPointer<QWidget> m_window;
};
