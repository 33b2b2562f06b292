// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <app/common/language.h>

#include <fishbone/exchange/diagramexchange.h>

using namespace ProgramRunner;

/** What bash completes. */
class TestCompletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldCompleteCommands();
    void shouldCompleteTheOptionsOfEachCommand_data();
    void shouldCompleteTheOptionsOfEachCommand();
    void shouldCompleteFormats();
    void shouldCompleteLanguages();
    void shouldLeaveFilesToTheShell();
};

namespace {

/** What bash offers behind these words, the last one being typed. */
QStringList completions(const QString &words)
{
    QProcess bash;
    const QString script = QStringLiteral("source \"$0\" && COMP_WORDS=(\"$@\") && "
                                          "COMP_CWORD=$(($# - 1)) && _fishbone && "
                                          "printf '%s\\n' \"${COMPREPLY[@]}\"");
    bash.start(QStringLiteral("bash"),
               QStringList{QStringLiteral("-euc"), script,
                           TestSupport::sourceFile(QStringLiteral("resources/fishbone.bash"))} +
                   words.split(QLatin1Char(' ')));
    if (!bash.waitForFinished(timeLimit) || bash.exitCode() != 0)
        return {QStringLiteral("failed: ") + QString::fromUtf8(bash.readAllStandardError())};
    QStringList found =
        QString::fromUtf8(bash.readAllStandardOutput()).trimmed().split(QLatin1Char('\n'));
    found.removeAll(QString());
    found.sort();
    return found;
}

} // namespace

void TestCompletion::shouldCompleteCommands()
{
    QCOMPARE(
        completions(QStringLiteral("fishbone ")),
        (QStringList{QStringLiteral("check"), QStringLiteral("convert"), QStringLiteral("info"),
                     QStringLiteral("merge"), QStringLiteral("report")}));
    QCOMPARE(completions(QStringLiteral("fishbone me")), QStringList{QStringLiteral("merge")});
}

void TestCompletion::shouldCompleteTheOptionsOfEachCommand_data()
{
    QTest::addColumn<QString>("command");
    for (const char *command : {"", "convert", "info", "report", "check", "merge"})
        QTest::newRow(command) << QString(QLatin1String(command));
}

/** As the help has them, so that no new one is forgotten. */
void TestCompletion::shouldCompleteTheOptionsOfEachCommand()
{
    QFETCH(QString, command);
    const Folder folder;
    QStringList arguments{QStringLiteral("--help")};
    if (!command.isEmpty())
        arguments.prepend(command);
    const QString help = run(arguments, folder.environment()).out;
    QStringList options;
    const QRegularExpression option(QStringLiteral("^  (?:-[a-z], )?(--[a-z]+(?:-[a-z]+)*)"),
                                    QRegularExpression::MultilineOption);
    for (auto match = option.globalMatch(help); match.hasNext();)
        options.append(match.next().captured(1));
    options.removeAll(QStringLiteral("--help-all")); // of the toolkit
    options.sort();
    QVERIFY(options.size() >= 2);
    const QString words = command.isEmpty() ? QString() : command + QLatin1Char(' ');
    QCOMPARE(completions(QStringLiteral("fishbone %1--").arg(words)), options);
}

void TestCompletion::shouldCompleteFormats()
{
    QStringList read;
    QStringList written;
    const QList<DiagramExchange::Format> formats = DiagramExchange::formats();
    for (const DiagramExchange::Format format : formats) {
        if (DiagramExchange::canRead(format))
            read.append(DiagramExchange::id(format));
        if (DiagramExchange::canWrite(format))
            written.append(DiagramExchange::id(format));
    }
    read.sort();
    written.sort();
    QCOMPARE(completions(QStringLiteral("fishbone convert --from ")), read);
    QCOMPARE(completions(QStringLiteral("fishbone convert --to ")), written);
}

void TestCompletion::shouldCompleteLanguages()
{
    QStringList languages = Language::all();
    languages.sort();
    QCOMPARE(completions(QStringLiteral("fishbone --language ")), languages);
}

void TestCompletion::shouldLeaveFilesToTheShell()
{
    QCOMPARE(completions(QStringLiteral("fishbone convert a")), QStringList());
    QCOMPARE(completions(QStringLiteral("fishbone --export ")), QStringList());
    QCOMPARE(completions(QStringLiteral("fishbone --translations ")), QStringList());
}

FISHBONE_GUILESS_TEST(TestCompletion)
#include "tst_completion.moc"
