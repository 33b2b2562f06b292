// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <tests/support/filecontent.h>

/** Runs the real program, with a bare environment and a time limit. */
namespace ProgramRunner {

using TestSupport::contentOf;

constexpr int timeLimit = 30000; ///< milliseconds that the program may take for anything

/** The path of the program. */
QString program();

struct Outcome
{
    int code = -1; ///< -1 when the program crashed or took too long
    QString out;
    QString err;
};

inline QProcessEnvironment bareEnvironment(const QString &home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QStringList names = environment.keys();
    for (const QString &name : names) {
        if (name.startsWith(QLatin1String("QT_")) || name.startsWith(QLatin1String("XDG_")))
            environment.remove(name);
    }
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    return environment;
}

/** Waits for the end of what was started, and takes what it has written. */
inline Outcome outcomeOf(QProcess &process)
{
    Outcome outcome;
    if (process.waitForFinished(timeLimit) && process.exitStatus() == QProcess::NormalExit)
        outcome.code = process.exitCode();
    outcome.out = QString::fromUtf8(process.readAllStandardOutput());
    outcome.err = QString::fromUtf8(process.readAllStandardError());
    return outcome;
}

inline Outcome run(const QStringList &arguments, const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program(), arguments);
    return outcomeOf(process);
}

inline QByteArray diagram()
{
    return R"({"title": "Late", "uuid": "h", "children": [
        {"title": "People", "uuid": "a", "children": [
            {"title": "Too few", "uuid": "b", "children": [{"title": "Illness", "uuid": "c"}]}]},
        {"title": "Machines", "uuid": "d", "children": []}]})";
}

inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

/** A web server that gives every visitor the same reply. */
class Server
{
public:
    explicit Server(const QByteArray &reply)
    {
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this, reply] {
            QTcpSocket *const socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket, reply] {
                if (!socket->readAll().contains("\r\n\r\n"))
                    return;
                socket->write(reply);
                socket->disconnectFromHost();
            });
        });
        m_listens = m_server.listen(QHostAddress::LocalHost);
    }

    bool listens() const { return m_listens; }
    QString url() const
    {
        return QStringLiteral("http://127.0.0.1:%1/diagram.json").arg(m_server.serverPort());
    }

private:
    QTcpServer m_server;
    bool m_listens = false;
};

/** As run(), with an event loop, so that a server of this process can reply meanwhile. */
inline Outcome runBesideServer(const QStringList &arguments, const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program(), arguments);
    Outcome outcome;
    if (QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, timeLimit) &&
        process.exitStatus() == QProcess::NormalExit)
        outcome.code = process.exitCode();
    outcome.out = QString::fromUtf8(process.readAllStandardOutput());
    outcome.err = QString::fromUtf8(process.readAllStandardError());
    return outcome;
}

/**
 * Fails the test unless a run was refused for its arguments, in one line that has all @p mentions.
 */
inline void verifyUsageError(const Outcome &outcome, const QStringList &mentions)
{
    QCOMPARE(outcome.code, 2);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: ")), qPrintable(outcome.err));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
    for (const QString &mention : mentions)
        QVERIFY2(outcome.err.contains(mention), qPrintable(outcome.err));
}

/** A folder with a diagram in it, and room for a picture. */
class Folder
{
public:
    Folder() { writeFile(document(), diagram()); }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString document() const { return path(QStringLiteral("diagram.json")); }
    QString picture() const { return path(QStringLiteral("picture.png")); }
    QProcessEnvironment environment() const { return bareEnvironment(m_folder.path()); }

private:
    QTemporaryDir m_folder;
};

} // namespace ProgramRunner
