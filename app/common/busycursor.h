// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QPointer>

class QStatusBar;
class TreeItem;

/**
 * Shows the cursor of a program that works, and says so in the status bar, as long as it lives: for
 * work that cannot be split, so that nothing else happens meanwhile. Nobody may be asked anything
 * before it is gone.
 */
class BusyCursor
{
    Q_DECLARE_TR_FUNCTIONS(BusyCursor)
    Q_DISABLE_COPY(BusyCursor)

public:
    /** For work that takes its time. */
    BusyCursor();
    /** For work on all that is below @p root, which may be null: shows nothing for what is done
     * before anybody has seen it. */
    explicit BusyCursor(const TreeItem *root);
    ~BusyCursor();

private:
    void show();

    bool m_isShown = false;
    QPointer<QStatusBar> m_statusBar;
};
