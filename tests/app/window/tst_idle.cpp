// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>

#include <QElapsedTimer>

using namespace ProgramRunner;

namespace {

/** How often the threads of process @p pid have gone to sleep so far, by the system's own count;
 * each time they were woken again. */
qint64 sleepsOf(qint64 pid)
{
    const QDir threads(QStringLiteral("/proc/%1/task").arg(pid));
    const QByteArray name("\nvoluntary_ctxt_switches:");
    qint64 sleeps = 0;
    for (const QString &thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(threads.filePath(thread + QStringLiteral("/status")));
        const QByteArray status = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        const int at = int(status.indexOf(name));
        if (at >= 0)
            sleeps +=
                status.mid(at + name.size()).simplified().split(' ').constFirst().toLongLong();
    }
    return sleeps;
}

} // namespace

class TestIdle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNotWakeWhileNobodyDoesAnything();

private:
    /** Waits until the program has slept for a second; false when it takes too long. */
    static bool waitForRest(const QProcess &program);

    Folder m_folder;
};

bool TestIdle::waitForRest(const QProcess &program)
{
    constexpr int rest = 1000;
    qint64 sleeps = 0;
    QElapsedTimer resting;
    resting.start();
    return QTest::qWaitFor(
        [&] {
            const qint64 now = sleepsOf(program.processId());
            if (now != sleeps || now == 0)
                resting.start();
            sleeps = now;
            return resting.hasExpired(rest);
        },
        timeLimit);
}

void TestIdle::shouldNotWakeWhileNobodyDoesAnything()
{
#ifndef Q_OS_LINUX
    QSKIP("only this system counts how often a program was woken");
#endif
    // Copies for recovery as often as can be, which would show if they were made for nothing.
    const QString settings = m_folder.path(QStringLiteral(".config/Fishbone/Fishbone.conf"));
    QVERIFY(QDir().mkpath(QFileInfo(settings).path()));
    ProgramRunner::writeFile(settings, "[General]\nautosaveSeconds=1\n");
    QProcessEnvironment environment = m_folder.environment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(ProgramRunner::program(), {m_folder.document()});
    QVERIFY(program.waitForStarted(timeLimit));
    QVERIFY(waitForRest(program));

    constexpr int watched = 5000;
    constexpr int once = 2; // a message that goes, and a page of the program that is fetched again
    const qint64 before = sleepsOf(program.processId());
    QTest::qWait(watched);
    const qint64 sleeps = sleepsOf(program.processId()) - before;
    QCOMPARE(program.state(), QProcess::Running);
    program.kill();
    program.waitForFinished(timeLimit);
    QVERIFY(before > 0);
    QVERIFY2(sleeps <= once, QByteArray::number(sleeps));
}

FISHBONE_GUILESS_TEST(TestIdle)
#include "tst_idle.moc"
