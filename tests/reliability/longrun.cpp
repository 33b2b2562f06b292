// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// longrun [--seed N] [--operations N] [--subjects N] [--verbose]
//
// Uses editors and models at random, the same for the same seed, and checks all along that they fit
// together: what is cheap after every operation, everything after each fifty. Now and then all is
// closed, and the memory has to come back. Exits with 1 and says what was done last when anything
// is wrong.

#include <tests/reliability/dialogcloser.h>
#include <tests/reliability/randomuser.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QPixmapCache>

#include <cstdio>
#include <cstdlib>
#include <deque>

#include <malloc.h>

#include <fishbone/items/linkitem.h>
#include <tests/program/sanitized.h>

#ifdef FISHBONE_SANITIZED
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // gcc has no header for it
#endif

namespace {

constexpr int checkEvery = 50;
constexpr int closeEvery = 5000;
/** What caches of the toolkit may take on top of what they had after the first closing. */
constexpr qint64 cacheGrowth = 64 << 20;

std::deque<QString> lastOperations;

void fail(const QString &what)
{
    for (const QString &operation : lastOperations)
        std::fprintf(stderr, "%s\n", qPrintable(operation));
    std::fprintf(stderr, "Failed: %s\n", qPrintable(what));
    std::_Exit(1);
}

void noteOperation(int number, const QString &name)
{
    constexpr std::size_t kept = 20;
    lastOperations.push_back(QStringLiteral("%1 %2").arg(number).arg(name));
    if (lastOperations.size() > kept)
        lastOperations.pop_front();
}

qint64 allocatedBytes()
{
#ifdef FISHBONE_SANITIZED
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const auto info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
#endif
}

void keepQuiet(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg)
        fail(text);
}

int numberOf(const QCommandLineParser &parser, const char *option)
{
    bool isNumber = false;
    const int number = parser.value(QString::fromLatin1(option)).toInt(&isNumber);
    if (!isNumber || number < 0)
        fail(QStringLiteral("no number: --") + QString::fromLatin1(option));
    return number;
}

/** Prints now and then how far the run has come. */
class Progress
{
public:
    Progress() { m_sinceStart.start(); }

    void show(int operation, qint64 bytes) const
    {
        const double seconds = double(m_sinceStart.elapsed()) / 1000;
        std::printf("%d operations, %.0f a second, %.1f MiB when closed\n", operation,
                    operation / seconds, double(bytes) / (1 << 20));
        std::fflush(stdout);
    }

private:
    QElapsedTimer m_sinceStart;
};

class LongRun
{
public:
    LongRun(int seed, int subjects, bool isVerbose)
        : m_random(quint32(seed))
        , m_world(m_random, subjects)
        , m_isVerbose(isVerbose)
    {
    }

    void run(int operations)
    {
        for (int i = 1; i <= operations; ++i) {
            const QString name = m_user.act();
            noteOperation(i, name);
            if (m_isVerbose)
                std::fprintf(stderr, "%d %s\n", i, qPrintable(name));
            QCoreApplication::sendPostedEvents();
            check(m_world.quickFault());
            m_world.keepInBounds();
            if (i % checkEvery == 0) {
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                QCoreApplication::processEvents();
                check(m_world.fault());
                check(m_user.undoFault());
                check(m_world.fault());
            }
            if (i % closeEvery == 0 || i == operations)
                close(i);
        }
    }

    int answeredDialogs() const { return m_closer.answered; }
    const RandomUser &user() const { return m_user; }

private:
    static void check(const QString &fault)
    {
        if (!fault.isEmpty())
            fail(fault);
    }

    void close(int operation)
    {
        m_world.clear();
        QPixmapCache::clear();
        const qint64 bytes = allocatedBytes();
        m_progress.show(operation, bytes);
        if (m_bytesAtFirst == 0)
            m_bytesAtFirst = bytes;
        if (bytes > m_bytesAtFirst + cacheGrowth)
            fail(QStringLiteral("%1 bytes more than at first").arg(bytes - m_bytesAtFirst));
        m_world.keepInBounds();
    }

    QRandomGenerator m_random;
    RandomWorld m_world;
    RandomUser m_user{m_world, m_random};
    DialogCloser m_closer{m_random};
    Progress m_progress;
    qint64 m_bytesAtFirst = 0;
    bool m_isVerbose;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("seed"), QStringLiteral("What to begin with"),
                      QStringLiteral("number"), QStringLiteral("1")});
    parser.addOption({QStringLiteral("operations"), QStringLiteral("How many"),
                      QStringLiteral("number"), QStringLiteral("4000")});
    parser.addOption({QStringLiteral("subjects"),
                      QStringLiteral("How many the first document of a model has; 0 for a few"),
                      QStringLiteral("number"), QStringLiteral("0")});
    parser.addOption({QStringLiteral("verbose"), QStringLiteral("Name each operation")});
    parser.process(application);
    LinkItem::setOpener([](const QUrl &) {});
    qInstallMessageHandler(keepQuiet);

    LongRun run(numberOf(parser, "seed"), numberOf(parser, "subjects"),
                parser.isSet(QStringLiteral("verbose")));
    const int operations = numberOf(parser, "operations");
    run.run(operations);
    const auto &calls = run.user().calledSlots();
    std::printf("%d slots of the editor were called, %d dialogs and menus answered, %d times a "
                "listener did something\n",
                int(calls.size()), run.answeredDialogs(), run.user().reactions());
    if (operations >= checkEvery * 10 && run.user().reactions() == 0)
        fail(QStringLiteral("no listener ever did anything"));
    return 0;
}
