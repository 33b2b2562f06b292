// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// hostile [--seed N] [--seconds N] [--jobs N] [--only TEXT] [--table]
//
// Whatever the library does, whoever listens, whatever the listener does: each combination of an
// operation, a signal that comes in it and a reaction, in a process of its own. Nothing may crash,
// the model stays consistent, what is announced is what happens, the history can be walked, and no
// subject that neither operation nor reaction concerns is gone or another.
//
// The combinations run in random order, all of them or as many as there is time for. --only runs
// those whose names contain a text ("operation / signal / reaction"), --table tells how many of
// each ran. Exits with 1 when one failed.

#include <tests/reliability/hostileacts.h>
#include <tests/reliability/hostilerun.h>
#include <tests/reliability/hostilestage.h>

#include <QApplication>
#include <QComboBox>
#include <QCommandLineParser>
#include <QDialog>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMap>
#include <QMenu>
#include <QRandomGenerator>
#include <QThread>
#include <QTimer>

#include <fishbone/items/linkitem.h>

#include <algorithm>
#include <cstdio>

namespace {

/** Answers dialogs and menus as a user who wants what they offer. */
class Answerer
{
public:
    explicit Answerer(HostileStage &stage)
        : m_stage(stage)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { answer(); });
        m_timer.start(0);
    }

private:
    void answer()
    {
        if (auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            menu->setActiveAction(menu->actions().last());
            QKeyEvent chosen(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QCoreApplication::sendEvent(menu, &chosen);
        } else if (auto *const dialog =
                       qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            m_stage.watchDialog(dialog);
            if (auto *const box = dialog->findChild<QComboBox *>())
                box->setEditText(QStringLiteral("https://example.org"));
            dialog->done(dialog->inherits("QFileDialog") ? QDialog::Rejected : QDialog::Accepted);
        }
    }

    HostileStage &m_stage;
    QTimer m_timer;
};

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

int failWith(const QString &fault)
{
    if (fault.isEmpty())
        return 0;
    std::fprintf(stderr, "%s\n", qPrintable(fault));
    return 1;
}

void printProblems(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg || type == QtCriticalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

/** Prints which signals come in an operation, a line each. */
int printSignals(HostileStage &stage, const HostileAct &operation)
{
    const Answerer answerer(stage);
    operation.prepare(stage);
    settle();
    QMap<QString, int> heard;
    const QStringList names = stage.signalNames();
    for (const QString &name : names)
        stage.listen(name, [&heard, name] { ++heard[name]; });
    operation.run(stage);
    const int reports = heard.value(QStringLiteral("scene.selectionChanged"));
    settle();
    for (auto it = heard.cbegin(); it != heard.cend(); ++it)
        std::printf("%s\n", qPrintable(it.key()));
    if (operation.isOneCall && reports > 1)
        return failWith(QStringLiteral("the selection was told %1 times").arg(reports));
    return 0;
}

/** Undoes and redoes all there is, and looks at what there is left then. */
QString historyFault(HostileStage &stage)
{
    stage.giveUp({"Age"}); // which the first step of the history renames
    for (int pass = 0; pass < 4; ++pass) {
        if (!stage.editor || !stage.model)
            return {};
        UndoStack *const stack = stage.editor->undoStack();
        stack->setCurrentIndex(pass % 2 == 0 ? -1 : stack->count() - 1);
        const QString fault = stage.fault();
        if (!fault.isEmpty())
            return fault + (pass % 2 == 0 ? QStringLiteral(" when all is undone")
                                          : QStringLiteral(" when all is redone"));
    }
    return {};
}

struct Combination
{
    const HostileAct *operation;
    QString signal;
    const HostileAct *reaction;

    QString name() const
    {
        return operation->name + QStringLiteral(" / ") + signal + QStringLiteral(" / ") +
               reaction->name;
    }
    /** Between the announcement of a change and the change. */
    bool isWithinChange() const { return signal.contains(QLatin1String("AboutToBe")); }
};

int runCombination(HostileStage &stage, const Combination &combination)
{
    const Answerer answerer(stage);
    stage.giveUp(combination.operation->concerned);
    stage.giveUp(combination.reaction->concerned);
    combination.operation->prepare(stage);
    settle();
    bool hasReacted = false;
    QString early;
    stage.listen(combination.signal, [&] {
        if (std::exchange(hasReacted, true))
            return;
        const QString before = stage.treeText();
        combination.reaction->run(stage);
        if (combination.isWithinChange() && stage.treeText() != before)
            early = QStringLiteral("the tree has changed within the announcement of a change");
    });
    combination.operation->run(stage);
    settle();
    if (!hasReacted)
        return failWith(QStringLiteral("the signal did not come"));
    if (early.isEmpty())
        early = stage.fault();
    if (early.isEmpty())
        early = historyFault(stage);
    settle();
    return failWith(early);
}

class Product
{
public:
    Product(int jobs, const QString &only)
        : m_runs(jobs)
        , m_only(only)
    {
    }

    /** All combinations that there are; false when an operation fails by itself. */
    bool find()
    {
        bool isWell = true;
        for (const HostileAct &operation : m_operations) {
            m_runs.start([&] { return printSignals(m_stage, operation); },
                         [&](const ForkedRuns::Outcome &outcome) {
                             if (!outcome.isWell)
                                 tell(operation.name + QStringLiteral(" by itself"), outcome);
                             isWell = isWell && outcome.isWell;
                             add(operation, outcome.printed);
                         });
        }
        m_runs.finish();
        return isWell;
    }

    bool run(quint32 seed, int seconds)
    {
        QRandomGenerator random(seed);
        std::shuffle(m_combinations.begin(), m_combinations.end(), random);
        QElapsedTimer elapsed;
        elapsed.start();
        for (const Combination &combination : m_combinations) {
            if (seconds > 0 && elapsed.hasExpired(qint64(seconds) * 1000))
                break;
            m_runs.start([&] { return runCombination(m_stage, combination); },
                         [&](const ForkedRuns::Outcome &outcome) { count(combination, outcome); });
        }
        m_runs.finish();
        std::printf("%d of %d combinations of %d operations and %d reactions ran, %d failed; "
                    "--seed %u\n",
                    m_run, int(m_combinations.size()), int(m_operations.size()),
                    int(m_reactions.size()), m_failed, seed);
        return m_failed == 0 && m_run > 0;
    }

    void printTable() const
    {
        for (const auto *counts : {&m_byOperation, &m_bySignal, &m_byReaction}) {
            std::printf("\n   ran  failed\n");
            for (auto it = counts->cbegin(); it != counts->cend(); ++it)
                std::printf("%6d  %6d  %s\n", it->ran, it->failed, qPrintable(it.key()));
        }
    }

private:
    struct Counts
    {
        int ran = 0;
        int failed = 0;
    };

    void add(const HostileAct &operation, const QByteArray &printed)
    {
        const QStringList names = m_stage.signalNames();
        const QStringList heard = QString::fromUtf8(printed).split(QLatin1Char('\n'));
        for (const QString &signal : heard) {
            for (const HostileAct &reaction : m_reactions) {
                const Combination combination{&operation, signal, &reaction};
                // The toolkit does not survive the end of a model that announces something.
                const bool isFatal = reaction.endsModel && combination.isWithinChange();
                if (names.contains(signal) && !isFatal && combination.name().contains(m_only))
                    m_combinations.push_back(combination);
            }
        }
    }

    void count(const Combination &combination, const ForkedRuns::Outcome &outcome)
    {
        ++m_run;
        m_failed += outcome.isWell ? 0 : 1;
        for (Counts *counts :
             {&m_byOperation[combination.operation->name], &m_bySignal[combination.signal],
              &m_byReaction[combination.reaction->name]}) {
            ++counts->ran;
            counts->failed += outcome.isWell ? 0 : 1;
        }
        if (!outcome.isWell)
            tell(combination.name(), outcome);
    }

    static void tell(const QString &name, const ForkedRuns::Outcome &outcome)
    {
        constexpr int shown = 6000;
        std::printf("FAIL %s\n%s\n", qPrintable(name),
                    outcome.printed.trimmed().left(shown).data());
        std::fflush(stdout);
    }

    HostileStage m_stage;
    const std::vector<HostileAct> m_operations = hostileOperations();
    const std::vector<HostileAct> m_reactions = hostileReactions();
    std::vector<Combination> m_combinations;
    ForkedRuns m_runs;
    QString m_only;
    int m_run = 0;
    int m_failed = 0;
    QMap<QString, Counts> m_byOperation;
    QMap<QString, Counts> m_bySignal;
    QMap<QString, Counts> m_byReaction;
};

int numberOf(const QCommandLineParser &parser, const char *option)
{
    return qMax(0, parser.value(QString::fromLatin1(option)).toInt());
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOption({QStringLiteral("seed"), QStringLiteral("Decides the order; any unless given"),
                      QStringLiteral("number")});
    parser.addOption({QStringLiteral("seconds"), QStringLiteral("Starts none after that; 0: all"),
                      QStringLiteral("number"), QStringLiteral("0")});
    parser.addOption({QStringLiteral("jobs"), QStringLiteral("How many at a time"),
                      QStringLiteral("number"), QString::number(QThread::idealThreadCount())});
    parser.addOption({QStringLiteral("only"), QStringLiteral("Those with a text in their names"),
                      QStringLiteral("text")});
    parser.addOption({QStringLiteral("table"), QStringLiteral("Tells how many of each ran")});
    parser.process(application);
    LinkItem::setOpener([](const QUrl &) {});
    qInstallMessageHandler(printProblems);

    const quint32 seed = parser.isSet(QStringLiteral("seed"))
                             ? quint32(numberOf(parser, "seed"))
                             : QRandomGenerator::global()->generate();
    Product product(qMax(1, numberOf(parser, "jobs")), parser.value(QStringLiteral("only")));
    const bool isFound = product.find();
    const bool isWell = product.run(seed, numberOf(parser, "seconds"));
    if (parser.isSet(QStringLiteral("table")))
        product.printTable();
    return isFound && isWell ? 0 : 1;
}
