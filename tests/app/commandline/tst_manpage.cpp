// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

using namespace ProgramRunner;

/** What the man page shows. */
class TestManPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldHaveExamplesThatWork();
    void shouldNameTheMergeDriverAsItIsTested();
};

namespace {

/** The lines of the examples in the section @p name, as they are typed. */
QStringList linesOf(const QString &name)
{
    const QString page =
        QString::fromUtf8(contentOf(TestSupport::sourceFile(QStringLiteral("docs/fishbone.1"))));
    const QString section = page.section(QStringLiteral(".SH ") + name + QLatin1Char('\n'), 1)
                                .section(QStringLiteral("\n.SH "), 0, 0);
    QStringList lines;
    const QStringList blocks = section.split(QStringLiteral("\n.nf\n")).mid(1);
    for (const QString &block : blocks)
        lines += block.section(QStringLiteral("\n.fi"), 0, 0).split(QLatin1Char('\n'));
    return lines.replaceInStrings(QStringLiteral("\\-"), QStringLiteral("-"));
}

} // namespace

void TestManPage::shouldHaveExamplesThatWork()
{
    const Folder folder;
    writeFile(folder.path(QStringLiteral("causes.md")), "# Late\n- People\n- Machines\n");
    for (const char *name : {"base.json", "ours.json", "theirs.json"})
        writeFile(folder.path(QLatin1String(name)), diagram());
    const QStringList lines = linesOf(QStringLiteral("EXAMPLES"));
    QVERIFY(lines.size() >= 6);
    for (const QString &line : lines) {
        QStringList words = line.split(QLatin1Char(' '));
        QCOMPARE(words.takeFirst(), QStringLiteral("fishbone"));
        QProcess process;
        process.setProcessEnvironment(folder.environment());
        process.setWorkingDirectory(folder.path(QString()));
        process.start(program(), words);
        QVERIFY2(process.waitForFinished(timeLimit), qPrintable(line));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QVERIFY2(process.exitCode() == 0, (line.toUtf8() + process.readAll()).constData());
    }
    QVERIFY(QFile::exists(folder.path(QStringLiteral("causes.png"))));
}

void TestManPage::shouldNameTheMergeDriverAsItIsTested()
{
    QCOMPARE(linesOf(QStringLiteral("GIT")),
             (QStringList{QStringLiteral("*.fishbone.json merge=fishbone"),
                          QStringLiteral("[merge \"fishbone\"]"),
                          QStringLiteral("\tname = fishbone diagrams"),
                          QStringLiteral("\tdriver = fishbone merge %O %A %B")}));
}

FISHBONE_GUILESS_TEST(TestManPage)
#include "tst_manpage.moc"
