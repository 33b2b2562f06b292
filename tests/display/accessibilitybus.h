// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tests/display/xserver.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/**
 * A desktop with assistive technology: an X server, a session bus and, started by that, the
 * accessibility bus with its registry, all of its own. They end with this.
 */
class AccessibilityBus
{
    Q_DISABLE_COPY(AccessibilityBus)

public:
    AccessibilityBus()
    {
        m_environment = QProcessEnvironment::systemEnvironment();
        const QStringList names = m_environment.keys();
        for (const QString &name : names) {
            if (name.startsWith(QLatin1String("XDG_")) || name.startsWith(QLatin1String("QT_")))
                m_environment.remove(name);
        }
        const QString home = m_home.path();
        for (const char *name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            m_environment.insert(QLatin1String(name), home);
        m_environment.insert(QStringLiteral("DISPLAY"), QString::fromLatin1(m_screen.display()));
        m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        m_environment.insert(QStringLiteral("QT_XCB_GL_INTEGRATION"), QStringLiteral("none"));
        m_environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"),
                             QStringLiteral("1"));
        // The libraries of the bus leak, and whoever they start has no say in it.
        m_environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
        m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        m_bus.setProcessEnvironment(m_environment);
        m_bus.setReadChannel(QProcess::StandardOutput);
        m_bus.start(QStringLiteral("dbus-daemon"),
                    {QStringLiteral("--session"), QStringLiteral("--nofork"),
                     QStringLiteral("--print-address")});
        while (!m_address.endsWith('\n') && m_bus.waitForReadyRead(30000))
            m_address += m_bus.readAllStandardOutput();
        m_environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                             QString::fromLatin1(m_address.trimmed()));
    }
    ~AccessibilityBus() { end(m_bus); }

    bool isThere() const { return !m_screen.display().isEmpty() && !m_address.isEmpty(); }
    const QProcessEnvironment &environment() const { return m_environment; }
    QString home() const { return m_home.path(); }

    static void end(QProcess &process)
    {
        process.terminate();
        if (!process.waitForFinished(10000))
            process.kill();
        process.waitForFinished();
    }

private:
    QTemporaryDir m_home;
    XServer m_screen;
    QProcessEnvironment m_environment;
    QProcess m_bus;
    QByteArray m_address;
};

/** A program that runs there, and a client of the accessibility bus that asks what it shows. */
class AssistedProgram
{
    Q_DISABLE_COPY(AssistedProgram)

public:
    AssistedProgram(const AccessibilityBus &bus, const QString &program,
                    const QStringList &arguments, const QString &client)
    {
        for (QProcess *process : {&m_program, &m_client})
            process->setProcessEnvironment(bus.environment());
        m_program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_program.start(program, arguments);
        // Not whichever comes first in the path: the packages of the system are in this one.
        m_client.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_client.start(QStringLiteral("/usr/bin/python3"), {client});
    }
    ~AssistedProgram()
    {
        AccessibilityBus::end(m_client);
        AccessibilityBus::end(m_program);
    }

    /** The answer to @p request, an object or in a field of that name. */
    QJsonObject ask(const QString &request)
    {
        m_client.write(request.toUtf8() + '\n');
        QByteArray answer;
        while (!answer.endsWith('\n') && m_client.waitForReadyRead(60000))
            answer += m_client.readAllStandardOutput();
        return QJsonDocument::fromJson("{\"answer\": " + answer + '}').object();
    }
    QJsonObject tree() { return ask(QStringLiteral("tree"))[QLatin1String("answer")].toObject(); }
    bool act(const char *action, const char *role, const char *name)
    {
        const QString request =
            QStringLiteral("do %1|%2|%3")
                .arg(QLatin1String(action), QLatin1String(role), QString::fromUtf8(name));
        return ask(request)[QLatin1String("answer")].toBool();
    }

private:
    QProcess m_program;
    QProcess m_client;
};
