// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QProcess>
#include <QtTest>

/** An X server without a screen of its own, for one test program. It ends with this. */
class XServer
{
    Q_DISABLE_COPY(XServer)

public:
    XServer()
    {
        // It picks a display that nobody uses and says which.
        m_server.setReadChannel(QProcess::StandardOutput);
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"),
                        QStringLiteral("-screen"), QStringLiteral("0"),
                        QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp")});
        while (m_display.indexOf('\n') < 0 && m_server.waitForReadyRead(30000))
            m_display += m_server.readAllStandardOutput();
        m_display = m_display.trimmed();
    }
    ~XServer()
    {
        m_server.terminate();
        if (!m_server.waitForFinished(10000))
            m_server.kill();
        m_server.waitForFinished();
    }

    /** What the server's clients call it; empty when it does not run. */
    QByteArray display() const { return m_display.isEmpty() ? m_display : ':' + m_display; }

private:
    QProcess m_server;
    QByteArray m_display;
};

/** Runs the test of a class on an X server of its own. */
template <typename Test>
int runOnXServer(int argc, char **argv)
{
    const XServer server;
    if (server.display().isEmpty()) {
        qCritical("Xvfb, from the package of that name, does not start.");
        return 1;
    }
    qputenv("DISPLAY", server.display());
    qputenv("QT_QPA_PLATFORM", "xcb");
    // Nothing here draws with OpenGL or talks to the user's session; the libraries for both leak.
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
