// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

/** The example host as a process of its own, which does what it is told line by line. */
class HostProcess
{
    Q_DISABLE_COPY(HostProcess)

public:
    static constexpr int timeLimit = 60000; ///< milliseconds for any one answer

    /** Where the program is. */
    static QString program();

    /**
     * Starts a host on @p database for @p author, who has @p home for what a program keeps, or a
     * new folder.
     */
    HostProcess(const QString &database, const QString &author, const QString &home = QString())
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.isEmpty() ? m_home.path() : home);
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::SeparateChannels);
        m_process.start(program(),
                        {QStringLiteral("--database"), database, QStringLiteral("--author"), author,
                         QStringLiteral("--rehearse")});
    }
    ~HostProcess() { kill(); }

    void tell(const QString &command) { m_process.write(command.toUtf8() + '\n'); }
    /** Whether a line that begins with @p word comes in time; lines() has all up to it. */
    bool waitFor(const QString &word, int limit = timeLimit)
    {
        QElapsedTimer timer;
        timer.start();
        for (;;) {
            while (m_process.canReadLine()) {
                m_lines.append(QString::fromUtf8(m_process.readLine()).trimmed());
                if (m_lines.constLast().startsWith(word))
                    return true;
            }
            const int left = limit - int(timer.elapsed());
            if (left <= 0 || m_process.state() == QProcess::NotRunning)
                return false;
            m_process.waitForReadyRead(left);
        }
    }
    /** What came since the last call. */
    QStringList takeLines()
    {
        QStringList lines;
        lines.swap(m_lines);
        return lines;
    }
    /** All tasks as the host tells them once all is stored; empty when it does not. */
    QStringList tree(int limit = timeLimit) { return tasks(QStringLiteral("tree"), limit); }
    /** All tasks as the host has them itself; empty when it does not tell. */
    QStringList here() { return tasks(QStringLiteral("here"), timeLimit); }
    /** Ends the process in the middle of whatever it does, and reads what it had said. */
    void kill()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.kill();
        m_process.waitForFinished();
        while (m_process.canReadLine())
            m_lines.append(QString::fromUtf8(m_process.readLine()).trimmed());
    }
    /** Whether it ends by itself and well when it is told to. */
    bool quit()
    {
        tell(QStringLiteral("quit"));
        return m_process.waitForFinished(timeLimit) &&
               m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }

private:
    QStringList tasks(const QString &command, int limit)
    {
        tell(command);
        if (!waitFor(QStringLiteral("end "), limit))
            return {};
        QStringList told;
        const QStringList lines = takeLines();
        for (const QString &line : lines) {
            if (!line.isEmpty() && line.at(0).isDigit())
                told.append(line);
        }
        return told;
    }

    QTemporaryDir m_home;
    QProcess m_process;
    QStringList m_lines;
};
