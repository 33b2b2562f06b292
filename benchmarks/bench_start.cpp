// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The program from its start until it has drawn the window with a document and sleeps, against a
// window with an empty view.

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <benchmarks/paired.h>
#include <benchmarks/rows.h>
#include <benchmarks/synthetic.h>

namespace {

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName); // has no size, as all files there
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** The processor time that process @p pid has taken, in seconds. */
double processorSecondsOf(qint64 pid)
{
    const QDir threads(QStringLiteral("/proc/%1/task").arg(pid));
    double nanoseconds = 0;
    for (const QString &thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        nanoseconds += contentOf(threads.filePath(thread + QStringLiteral("/schedstat")))
                           .split(' ')
                           .constFirst()
                           .toDouble();
    return nanoseconds * 1e-9;
}

/** The memory that process @p pid has and shares with no other file or program, in bytes. */
double ownBytesOf(qint64 pid)
{
    const QByteArray name("RssAnon:");
    const QByteArray status = contentOf(QStringLiteral("/proc/%1/status").arg(pid));
    const QByteArray rest = status.mid(status.indexOf(name) + name.size()).trimmed();
    return rest.left(rest.indexOf(' ')).toDouble() * 1024;
}

struct Start
{
    double seconds = 0;
    double bytes = 0;
};

/** Starts @p program and ends it once it has slept for half a second. */
Start startOf(const QString &program, const QStringList &arguments)
{
    const QTemporaryDir home; // of somebody who has never started it before
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForStarted())
        qFatal("%s does not start", qPrintable(program));
    constexpr int rest = 500;
    constexpr unsigned long step = 20;
    Start start;
    QElapsedTimer resting;
    resting.start();
    while (!resting.hasExpired(rest)) {
        QThread::msleep(step);
        const double seconds = processorSecondsOf(process.processId());
        if (seconds > start.seconds)
            resting.start();
        start.seconds = seconds;
    }
    start.bytes = ownBytesOf(process.processId());
    if (process.state() != QProcess::Running || start.seconds <= 0 || start.bytes <= 0)
        qFatal("%s has ended by itself", qPrintable(program));
    process.kill();
    process.waitForFinished();
    return start;
}

void compareStarts(benchmark::State &state, Synthetic::Shape shape, int size)
{
    const QTemporaryDir folder;
    const QString document = folder.filePath(QStringLiteral("document.json"));
    QFile file(document);
    if (!file.open(QIODevice::WriteOnly) || file.write(Synthetic::makeDocument(shape, size)) < 0)
        qFatal("cannot write %s", qPrintable(document));
    file.close();
    std::vector<double> ours;
    std::vector<double> bare;
    const auto startOurs = [&] {
        const Start start = startOf(QStringLiteral(FISHBONE_PROGRAM), {document});
        ours.push_back(start.bytes);
        return start.seconds;
    };
    const auto startBare = [&] {
        const Start start = startOf(QStringLiteral(FISHBONE_BARE_WINDOW), {});
        bare.push_back(start.bytes);
        return start.seconds;
    };
    Paired::compare(state, startOurs, startBare);
    state.counters["ours_bytes"] = Paired::median(ours);
    state.counters["bare_bytes"] = Paired::median(bare);
    state.counters["memory"] = Paired::median(ours) / Paired::median(bare);
}

} // namespace

void addRows()
{
    Paired::add("G20 start", Synthetic::Shape::Fan, Paired::gateSizes[0], compareStarts)
        ->UseManualTime()
        ->Iterations(Paired::repetitions);
}
