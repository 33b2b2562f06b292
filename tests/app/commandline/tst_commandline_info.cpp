// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace ProgramRunner;

/** "fishbone info" as it is typed. */
class TestCommandLineInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldCountWhatIsInADiagram();
    void shouldSayTheSameAsJson();
    void shouldFindWhatIsOff_data();
    void shouldFindWhatIsOff();
    void shouldFindNothingInSoundDiagrams_data();
    void shouldFindNothingInSoundDiagrams();
    void shouldReadEveryFormat();
    void shouldSayWhyAFileCannotBeRead();
    void shouldRefuseWhatMakesNoSense_data();
    void shouldRefuseWhatMakesNoSense();
    void shouldShowHelpForTheCommand();

private:
    QString path(const QString &name) const { return m_folder->path(name); }
    Outcome info(const QStringList &arguments) const
    {
        return run(QStringList{QStringLiteral("info")} + arguments, m_folder->environment());
    }

    QScopedPointer<Folder> m_folder;
};

void TestCommandLineInfo::init()
{
    m_folder.reset(new Folder);
}

void TestCommandLineInfo::shouldCountWhatIsInADiagram()
{
    writeFile(m_folder->document(),
              R"({"title": "Late", "uuid": "h", "url": "http://x", "children": [
        {"title": "a", "uuid": "a", "pid": "h", "spearstyle": {"textcount": 3}, "children": [
            {"title": "b", "uuid": "b", "pid": "a", "children": [
                {"title": "c", "uuid": "c", "pid": "b", "url": "http://y"}]}]},
        {"title": "d", "uuid": "d", "pid": "h"}]})");
    const Outcome outcome = info({m_folder->document()});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, QStringLiteral("Format: Fishbone diagram\n"
                                         "Title: Late\n"
                                         "Subjects: 5\n"
                                         "Main bones: 2\n"
                                         "Levels: 4\n"
                                         "Links: 2\n"
                                         "Own styles: 1\n"
                                         "Nothing is off.\n"));
    QCOMPARE(outcome.code, 0);
}

void TestCommandLineInfo::shouldSayTheSameAsJson()
{
    writeFile(m_folder->document(),
              QByteArray(R"({"title": "Zu sp\u00e4t", "uuid": "h", "url": "http://x", "children": [
        {"title": "a", "uuid": "a", "pid": "h", "children": [{"title": "b", "pid": "a"}]}]})"));
    QProcessEnvironment plain = m_folder->environment();
    plain.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    for (const QProcessEnvironment &environment : {m_folder->environment(), plain}) {
        const Outcome outcome = run(
            {QStringLiteral("info"), QStringLiteral("--json"), m_folder->document()}, environment);
        QCOMPARE(outcome.err, QString());
        QCOMPARE(outcome.code, 3);
        const QJsonObject expected{
            {QStringLiteral("version"), 1},
            {QStringLiteral("format"), QStringLiteral("json")},
            {QStringLiteral("title"), QString::fromUtf8("Zu spät")},
            {QStringLiteral("subjects"), 3},
            {QStringLiteral("mainBones"), 1},
            {QStringLiteral("levels"), 3},
            {QStringLiteral("links"), 1},
            {QStringLiteral("ownStyles"), 0},
            {QStringLiteral("findings"),
             QJsonArray{
                 QJsonObject{{QStringLiteral("place"), QStringLiteral("1.1")},
                             {QStringLiteral("title"), QStringLiteral("b")},
                             {QStringLiteral("reason"), QStringLiteral("it has no uuid")}}}}};
        QCOMPARE(QJsonDocument::fromJson(outcome.out.toLatin1()).object(), expected);
    }
}

void TestCommandLineInfo::shouldFindWhatIsOff_data()
{
    QTest::addColumn<QByteArray>("bone"); ///< the second main bone, besides its title
    QTest::addColumn<QString>("finding");

    const auto row = [](const char *bone, const char *finding) {
        QTest::newRow(finding) << QByteArray(bone) << QString::fromUtf8(finding);
    };
    row(R"("title": "x", "pid": "h")", R"(2 "x": it has no uuid)");
    row(R"("title": "x", "uuid": "-1", "pid": "h")", R"(2 "x": it has no uuid)");
    row(R"("title": "x", "uuid": "a", "pid": "h")",
        R"(2 "x": another subject has the same uuid a)");
    row(R"("title": "x", "uuid": "x")", R"(2 "x": it has no pid)");
    row(R"("title": "x", "uuid": "x", "pid": "")", R"(2 "x": it has no pid)");
    row(R"("title": "x", "uuid": "x", "pid": "a")", R"(2 "x": its pid a does not name its parent)");
    row(R"("title": " ", "uuid": "x", "pid": "h")", R"(2 "": it has no title)");
    row(R"("title": "x", "uuid": "x", "pid": "h", "status": 8)",
        R"(2 "x": its status 8 is unknown)");
    row(R"("title": "x", "uuid": "x", "pid": "h", "status": -2)",
        R"(2 "x": its status -2 is unknown)");
    row(R"("title": "x", "uuid": "x", "pid": "h", "progress": 101)",
        R"(2 "x": its progress 101 is not within 0 and 100)");
    row(R"("title": "x", "uuid": "x", "pid": "h", "progress": -1)",
        R"(2 "x": its progress -1 is not within 0 and 100)");
    row(R"("title": "x", "uuid": "x", "pid": "h", "createdate": 2, "planenddate": 1)",
        R"(2 "x": it is to end before it was created)");
    row(R"("title": "x", "uuid": "x", "pid": "h", "url": "http://[x")",
        R"(2 "x": its link http://[x is no URL)");
    row(R"("title": "x", "uuid": "x", "pid": "h", "children": [{"title": "y", "pid": "x"}])",
        R"(2.1 "y": it has no uuid)");
    row(R"("title": "a very long title that goes on and on, much longer than a line may be here",
           "pid": "h")",
        R"(2 "a very long title that goes on and on, much longer than a li…": it has no uuid)");
}

void TestCommandLineInfo::shouldFindWhatIsOff()
{
    QFETCH(QByteArray, bone);
    QFETCH(QString, finding);
    writeFile(
        m_folder->document(),
        R"({"title": "h", "uuid": "h", "children": [{"title": "a", "uuid": "a", "pid": "h"}, {)" +
            bone + "}]}");
    const Outcome outcome = info({m_folder->document()});
    QCOMPARE(outcome.err, QString());
    QVERIFY2(outcome.out.contains(QLatin1String("\nOff: 1\n  ") + finding),
             qPrintable(outcome.out));
    QCOMPARE(outcome.code, 3);
}

void TestCommandLineInfo::shouldFindNothingInSoundDiagrams_data()
{
    QTest::addColumn<QString>("file");
    const QDir samples(TestSupport::sourceFile(QStringLiteral("samples")));
    const QStringList names = samples.entryList({QStringLiteral("*.json")});
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << samples.filePath(name);
}

void TestCommandLineInfo::shouldFindNothingInSoundDiagrams()
{
    QFETCH(QString, file);
    const Outcome outcome = info({file});
    QVERIFY2(outcome.out.endsWith(QLatin1String("\nNothing is off.\n")), qPrintable(outcome.out));
    QCOMPARE(outcome.code, 0);
}

void TestCommandLineInfo::shouldReadEveryFormat()
{
    for (const char *suffix : {"md", "txt", "opml", "mm", "mmd", "csv"}) {
        const QString file = path(QStringLiteral("a.") + QLatin1String(suffix));
        QCOMPARE(
            run({QStringLiteral("convert"), m_folder->document(), file}, m_folder->environment())
                .code,
            0);
        const Outcome outcome = info({file});
        QVERIFY2(outcome.out.contains(QLatin1String("\nSubjects: 5\n")), qPrintable(outcome.out));
        QCOMPARE(outcome.code, 0);
    }
    writeFile(path(QStringLiteral("a.dat")), "# a\n- b");
    const Outcome outcome = info({QStringLiteral("--from=md"), path(QStringLiteral("a.dat"))});
    QVERIFY(
        outcome.out.startsWith(QLatin1String("Format: Markdown outline\nTitle: a\nSubjects: 2\n")));
}

void TestCommandLineInfo::shouldSayWhyAFileCannotBeRead()
{
    const QString missing = path(QStringLiteral("missing.json"));
    const Outcome outcome = info({missing});
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err,
             QStringLiteral("fishbone: cannot read %1: there is no such file\n").arg(missing));
}

void TestCommandLineInfo::shouldRefuseWhatMakesNoSense_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("mention");

    const auto row = [](const char *arguments, const char *mention) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments).split(QLatin1Char(' '))
                                 << QString::fromLatin1(mention);
    };
    row("info", "0");
    row("info a.json b.json", "2");
    row("info a.doc", "a.doc");
    row("info --from doc a.md", "doc");
    row("info --to md a.md", "--to");
    row("info --scale 2 a.md", "--scale");
    row("info --export a.png a.md", "--export");
}

void TestCommandLineInfo::shouldRefuseWhatMakesNoSense()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, mention);
    const Outcome outcome = run(arguments, m_folder->environment());
    QCOMPARE(outcome.code, 2);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.err.contains(mention), qPrintable(outcome.err));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
}

void TestCommandLineInfo::shouldShowHelpForTheCommand()
{
    const Outcome outcome = info({QStringLiteral("-h")});
    QCOMPARE(outcome.code, 0);
    QVERIFY(outcome.out.contains(QLatin1String("info file")));
    QVERIFY(!outcome.out.contains(QLatin1String("--to")));
}

FISHBONE_GUILESS_TEST(TestCommandLineInfo)
#include "tst_commandline_info.moc"
