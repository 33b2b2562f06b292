// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>

using namespace ProgramRunner;

/** "fishbone report" as it is typed. */
class TestCommandLineReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.reset(new Folder); }
    void shouldWriteEachKind_data();
    void shouldWriteEachKind();
    void shouldReportOnFilesOfOtherPrograms();
    void shouldSayWhatGoesWrong();
    void shouldRefuseWhatMakesNoSense_data();
    void shouldRefuseWhatMakesNoSense();
    void shouldShowHelpForTheCommand();

private:
    QString path(const QString &name) const { return m_folder->path(name); }
    Outcome report(const QStringList &arguments) const
    {
        return run(QStringList{QStringLiteral("report")} + arguments, m_folder->environment());
    }

    QScopedPointer<Folder> m_folder;
};

void TestCommandLineReport::shouldWriteEachKind_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("part");
    QTest::newRow("html") << QStringLiteral("a.html") << QByteArray("<svg");
    QTest::newRow("pdf") << QStringLiteral("a.PDF") << QByteArray("%PDF");
    QTest::newRow("md") << QStringLiteral("a.md") << QByteArray("](a.md.svg)");
}

void TestCommandLineReport::shouldWriteEachKind()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, part);
    const Outcome outcome = report({m_folder->document(), path(name)});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.code, 0);
    QVERIFY(contentOf(path(name)).contains(part));
}

void TestCommandLineReport::shouldReportOnFilesOfOtherPrograms()
{
    const QString source = path(QStringLiteral("a.csv"));
    writeFile(source, "title,votes,owner,due\nLate,,,\nSignal,3,Li,2024-01-31\n");
    const QString target = path(QStringLiteral("b.html"));
    const Outcome outcome = report({source, target});
    QCOMPARE(outcome.code, 0);
    const QByteArray page = contentOf(target);
    QVERIFY(page.contains("<td>1</td><td>Signal</td>"));
    QVERIFY(page.contains("<h3>Li</h3>"));
    QVERIFY(page.contains("overdue"));
}

void TestCommandLineReport::shouldSayWhatGoesWrong()
{
    const QString missing = path(QStringLiteral("missing.json"));
    const QString target = path(QStringLiteral("a.html"));
    Outcome outcome = report({missing, target});
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.contains(missing), qPrintable(outcome.err));
    outcome = report({m_folder->document(), QStringLiteral("/nowhere/a.html")});
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.contains(QLatin1String("/nowhere/a.html")), qPrintable(outcome.err));
}

void TestCommandLineReport::shouldRefuseWhatMakesNoSense_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("mentions");
    const auto row = [](const char *name, const char *arguments, const char *mentions) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '))
                            << QString::fromLatin1(mentions);
    };
    row("one file", "a.json", "file to write");
    row("another ending", "a.json b.docx", ".html, .pdf or .md");
    row("a picture's option", "--scale 2 a.json b.html", "--scale does not go with report");
    row("strict", "--strict a.json b.html", "--strict does not go with report");
}

void TestCommandLineReport::shouldRefuseWhatMakesNoSense()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, mentions);
    const Outcome outcome = report(arguments);
    QCOMPARE(outcome.code, 2);
    QVERIFY2(outcome.err.contains(mentions), qPrintable(outcome.err));
}

void TestCommandLineReport::shouldShowHelpForTheCommand()
{
    const Outcome outcome = report({QStringLiteral("--help")});
    QCOMPARE(outcome.code, 0);
    QVERIFY(outcome.out.contains(QLatin1String(".html, .pdf or .md")));
}

FISHBONE_TEST(TestCommandLineReport)
#include "tst_commandline_report.moc"
