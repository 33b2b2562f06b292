// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>

#include <memory>
#include <vector>

class QCoreApplication;

/**
 * What has to be settled before the application object is made: which one it is, and which platform
 * it runs on.
 *
 * A run that only says something (its version, what its options are, what is wrong with them) has
 * no platform at all: loading one, with its fonts, would be nearly all that it does.
 *
 * A run that draws without a window, an export for one, gets Qt's offscreen platform, whatever the
 * environment and the arguments say, so that it works without a display and draws the same
 * everywhere.
 */
class StartUp
{
    Q_DISABLE_COPY(StartUp)

public:
    StartUp(int argc, char **argv);

    /** Makes the application object that the run needs, which must not outlive this object. */
    std::unique_ptr<QCoreApplication> makeApplication();

    /** The arguments, the program's name in front, without those that the toolkit takes. They are
     * those of the application object, which alone knows how they are encoded. */
    QStringList arguments() const;

    /** Whether a window cannot be shown because there is no display. */
    bool lacksDisplay() const { return m_lacksDisplay; }

private:
    static bool hasDisplay(const QStringList &arguments);
    void useOffscreenPlatform();

    int m_argc;
    std::vector<char *> m_argv;
    QByteArray m_option = "-platform";
    QByteArray m_platform = "offscreen";
    bool m_lacksDisplay = false;
    bool m_drawsNothing = false;
};
