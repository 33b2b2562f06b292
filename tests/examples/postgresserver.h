// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>

#include <csignal>

#include <pwd.h>
#include <unistd.h>

/**
 * A PostgreSQL server of its own for one test program: new files in a folder for temporary ones, a
 * socket there and a port that was free, so that it meets no other server. It ends with the
 * process.
 */
class PostgresServer
{
    Q_DISABLE_COPY(PostgresServer)

public:
    static constexpr int timeLimit = 60000; ///< milliseconds for anything

    PostgresServer()
        : m_folder(QDir::tempPath() + QStringLiteral("/postgres-XXXXXX"))
    {
        QTcpServer probe;
        if (probe.listen(QHostAddress::LocalHost))
            m_port = QString::number(probe.serverPort());
    }
    ~PostgresServer() { stop(SIGQUIT); }

    /** Makes the files and starts the server; false with error() when that fails. */
    bool create()
    {
        // The server refuses to be run by root, and takes files from nobody else then.
        const passwd *const user = geteuid() == 0 ? getpwnam("postgres") : nullptr;
        if (geteuid() == 0 &&
            (!user || chown(m_folder.path().toLocal8Bit().constData(), user->pw_uid, user->pw_gid)))
            return fail(QStringLiteral("There is no user \"postgres\"."));
        QProcess files;
        startAsUser(files, QStringLiteral("initdb"),
                    {QStringLiteral("--pgdata"), data(), QStringLiteral("--username=fishbone"),
                     QStringLiteral("--auth=trust"), QStringLiteral("--encoding=UTF8"),
                     QStringLiteral("--locale=C"), QStringLiteral("--no-sync")});
        if (!files.waitForFinished(timeLimit) || files.exitCode() != 0)
            return fail(QString::fromLocal8Bit(files.readAllStandardError()));
        return start();
    }

    /** Starts the server on the files that there are, and waits until it answers. */
    bool start()
    {
        m_server.setStandardErrorFile(m_folder.filePath(QStringLiteral("log")), QIODevice::Append);
        startAsUser(m_server, QStringLiteral("postgres"),
                    {QStringLiteral("-D"), data(), QStringLiteral("-k"), m_folder.path(),
                     QStringLiteral("-c"), QStringLiteral("listen_addresses=127.0.0.1"),
                     QStringLiteral("-p"), m_port, QStringLiteral("-c"),
                     QStringLiteral("fsync=off")});
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < timeLimit && m_server.state() != QProcess::NotRunning) {
            if (QProcess::execute(program(QStringLiteral("pg_isready")),
                                  {QStringLiteral("--quiet"), QStringLiteral("--host"),
                                   m_folder.path(), QStringLiteral("--port"), m_port}) == 0)
                return true;
            m_server.waitForFinished(20);
        }
        return fail(QStringLiteral("The server does not start."));
    }

    /** Ends the server: SIGINT in good order, SIGQUIT as a crash does. */
    bool stop(int signal)
    {
        if (m_server.state() == QProcess::NotRunning)
            return true;
        ::kill(pid_t(m_server.processId()), signal);
        return m_server.waitForFinished(timeLimit);
    }

    /** What hosts call the data base, by its socket. */
    QString address() const
    {
        return QStringLiteral("postgresql://fishbone@localhost:%1/postgres?host=%2")
            .arg(m_port, m_folder.path());
    }
    /** The same as other machines call it, by its port. */
    QString networkAddress() const
    {
        return QStringLiteral("postgresql://fishbone@127.0.0.1:%1/postgres").arg(m_port);
    }
    QString error() const { return m_error; }

private:
    QString data() const { return m_folder.filePath(QStringLiteral("data")); }

    /** That program of the newest version that is installed. */
    static QString program(const QString &name)
    {
        const QDir versions(QStringLiteral("/usr/lib/postgresql"));
        const QStringList all = versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        return all.isEmpty() ? name
                             : versions.filePath(all.constLast() + QStringLiteral("/bin/") + name);
    }

    /** The program takes the place of setpriv, so that signals reach it. */
    void startAsUser(QProcess &process, const QString &name, const QStringList &arguments)
    {
        QStringList all{QStringLiteral("--pdeathsig"), QStringLiteral("QUIT")};
        if (geteuid() == 0)
            all << QStringLiteral("--reuid=postgres") << QStringLiteral("--regid=postgres")
                << QStringLiteral("--clear-groups");
        all << program(name);
        process.setWorkingDirectory(m_folder.path());
        process.start(QStringLiteral("setpriv"), all + arguments);
    }

    bool fail(const QString &text)
    {
        m_error = text;
        return false;
    }

    QTemporaryDir m_folder;
    QString m_port;
    QProcess m_server;
    QString m_error;
};
