// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>

#include <vector>

/**
 * What has to be settled before the application object is made: which platform it runs on.
 *
 * A run that shows no window (an export, a help text) gets Qt's offscreen platform, whatever the
 * environment and the arguments say, so that it works without a display and draws the same
 * everywhere. So does a run that wants a window where there is no display: it lives just long
 * enough to say so.
 */
class StartUp
{
    Q_DISABLE_COPY(StartUp)

public:
    StartUp(int argc, char **argv);

    /** The arguments for the application object; valid as long as this object. */
    int &argc() { return m_argc; }
    char **argv() { return m_argv.data(); }

    /** Ends what was set up for the time in which the application object is made. */
    static void restoreMessages();

    /** Whether a window cannot be shown because there is no display. */
    bool lacksDisplay() const { return m_lacksDisplay; }

private:
    static bool wantsWindow(const QStringList &arguments);
    static bool hasDisplay(const QStringList &arguments);
    void useOffscreenPlatform();

    int m_argc;
    std::vector<char *> m_argv;
    QByteArray m_option = "-platform";
    QByteArray m_platform = "offscreen";
    bool m_lacksDisplay = false;
};
