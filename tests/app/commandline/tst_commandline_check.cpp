// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>

using namespace ProgramRunner;

/** "fishbone check" as a hook runs it. */
class TestCommandLineCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldSayNothingOfSoundFiles();
    void shouldNameEachProblemBehindItsFile();
    void shouldReadAsTheOptionSays();
    void shouldRefuseWhatMakesNoSense_data();
    void shouldRefuseWhatMakesNoSense();

private:
    Outcome check(const QStringList &arguments) const
    {
        return run(QStringList{QStringLiteral("check")} + arguments, m_folder->environment());
    }
    QString written(const QString &name, const QByteArray &content) const
    {
        writeFile(m_folder->path(name), content);
        return m_folder->path(name);
    }

    QScopedPointer<Folder> m_folder;
};

void TestCommandLineCheck::init()
{
    m_folder.reset(new Folder);
}

void TestCommandLineCheck::shouldSayNothingOfSoundFiles()
{
    const QString diagram = written(QStringLiteral("a.json"), R"({"title": "h", "uuid": "h"})");
    const QString outline = written(QStringLiteral("b.md"), "# Late\n- People\n");
    const Outcome outcome = check({diagram, outline});
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);
}

void TestCommandLineCheck::shouldNameEachProblemBehindItsFile()
{
    const QString off = written(QStringLiteral("off.json"), R"({"title": "h", "children": [
        {"title": "x", "uuid": "x"}]})");
    const QString broken = written(QStringLiteral("broken.json"), "{\n\"title\": 1,\n]");
    const QString other = written(QStringLiteral("other.doc"), "x");
    const QString sound = written(QStringLiteral("sound.md"), "# Late\n");
    const Outcome outcome = check({off, sound, broken, other});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 1);
    const QStringList lines = outcome.out.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 5);
    QCOMPARE(lines.at(0), off + QLatin1String(": head \"h\": it has no uuid"));
    QCOMPARE(lines.at(1), off + QLatin1String(": 1 \"x\": it has no pid"));
    QVERIFY(
        lines.at(2).startsWith(broken + QLatin1String(": it is not a JSON document (line 3: ")));
    QCOMPARE(lines.at(3), other + QLatin1String(": the ending names no format that can be read"));
    QCOMPARE(lines.at(4), QString());
}

void TestCommandLineCheck::shouldReadAsTheOptionSays()
{
    const QString file = written(QStringLiteral("notes"), "# Late\n- People\n");
    QCOMPARE(check({file}).code, 1);
    const Outcome outcome = check({QStringLiteral("--from"), QStringLiteral("md"), file});
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.code, 0);
}

void TestCommandLineCheck::shouldRefuseWhatMakesNoSense_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no file") << QStringList() << QStringLiteral("check takes the files to look at");
    QTest::newRow("json") << QStringList{QStringLiteral("--json"), QStringLiteral("a.json")}
                          << QStringLiteral("--json does not go with check");
    QTest::newRow("strict") << QStringList{QStringLiteral("--strict"), QStringLiteral("a.json")}
                            << QStringLiteral("--strict does not go with check");
}

void TestCommandLineCheck::shouldRefuseWhatMakesNoSense()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const Outcome outcome = check(arguments);
    QCOMPARE(outcome.err, QStringLiteral("fishbone: %1\n").arg(reason));
    QCOMPARE(outcome.code, 2);
}

FISHBONE_GUILESS_TEST(TestCommandLineCheck)
#include "tst_commandline_check.moc"
