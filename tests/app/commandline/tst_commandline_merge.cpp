// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>

#include <QJsonDocument>

using namespace ProgramRunner;

/** "fishbone merge" as git runs it. */
class TestCommandLineMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldMergeTwoBranchesAsGitsDriver();
    void shouldLeaveAConflictToBeSolved();
    void shouldKeepOursWhenAFileCannotBeRead();
    void shouldTakeAnEmptyBase();
    void shouldRefuseWhatMakesNoSense_data();
    void shouldRefuseWhatMakesNoSense();
    void shouldChangeALineForAField();
    void shouldShowHelpForTheCommand();

private:
    QString path(const QString &name) const { return m_folder->path(name); }
    QString document() const { return path(QStringLiteral("late.fishbone.json")); }
    Outcome git(const QString &arguments) const;
    void begin();
    void change(const QByteArray &from, const QByteArray &to);
    void commit();

    QScopedPointer<Folder> m_folder;
};

void TestCommandLineMerge::init()
{
    m_folder.reset(new Folder);
}

/** Runs git in the folder. */
Outcome TestCommandLineMerge::git(const QString &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = m_folder->environment();
    for (const char *name : {"AUTHOR_NAME", "AUTHOR_EMAIL", "COMMITTER_NAME", "COMMITTER_EMAIL"})
        environment.insert(QStringLiteral("GIT_") + QLatin1String(name), QStringLiteral("a@b.c"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(path(QString()));
    process.start(QStringLiteral("git"), arguments.split(QLatin1Char(' ')));
    return outcomeOf(process);
}

/** Makes a repository with a diagram and the driver, as the man page says. */
void TestCommandLineMerge::begin()
{
    QCOMPARE(git(QStringLiteral("init -q -b main")).code, 0);
    writeFile(path(QStringLiteral(".gitattributes")), "*.fishbone.json merge=fishbone\n");
    writeFile(path(QStringLiteral("plain.json")), diagram());
    QFile config(path(QStringLiteral(".git/config")));
    QVERIFY(config.open(QIODevice::Append));
    config.write("[merge \"fishbone\"]\n\tname = fishbone diagrams\n\tdriver = \"'" +
                 program().toUtf8() + "' merge %O %A %B\"\n");
    config.close();
    const Outcome written =
        run({QStringLiteral("convert"), path(QStringLiteral("plain.json")), document()},
            m_folder->environment());
    QCOMPARE(written.code, 0);
    commit();
    QCOMPARE(git(QStringLiteral("branch theirs")).code, 0);
}

void TestCommandLineMerge::change(const QByteArray &from, const QByteArray &to)
{
    QByteArray content = contentOf(document());
    QVERIFY(content.contains(from));
    writeFile(document(), content.replace(from, to));
}

void TestCommandLineMerge::commit()
{
    QCOMPARE(git(QStringLiteral("add .gitattributes late.fishbone.json")).code, 0);
    QCOMPARE(git(QStringLiteral("commit -q -m change")).code, 0);
}

void TestCommandLineMerge::shouldMergeTwoBranchesAsGitsDriver()
{
    begin();
    // Lines beside each other, which git by itself could not merge.
    change("\"title\": \"Illness\"", "\"title\": \"Flu\"");
    commit();
    QCOMPARE(git(QStringLiteral("checkout -q theirs")).code, 0);
    change("\"detail\": \"\"", "\"detail\": \"Every winter\"");
    change("\"title\": \"Machines\"", "\"title\": \"Old machines\"");
    commit();
    QCOMPARE(git(QStringLiteral("checkout -q main")).code, 0);
    const Outcome merge = git(QStringLiteral("merge -q theirs"));
    QCOMPARE(merge.err, QString());
    QCOMPARE(merge.code, 0);
    const QByteArray content = contentOf(document());
    for (const char *part : {"\"Flu\"", "\"Every winter\"", "\"Old machines\"", "\"Too few\""})
        QVERIFY2(content.contains(part), part);
    QVERIFY(!content.contains("Illness"));
    QVERIFY(!content.contains("Merge conflict"));
}

void TestCommandLineMerge::shouldLeaveAConflictToBeSolved()
{
    begin();
    change("\"title\": \"Illness\"", "\"title\": \"Flu\"");
    commit();
    QCOMPARE(git(QStringLiteral("checkout -q theirs")).code, 0);
    change("\"title\": \"Illness\"", "\"title\": \"Accidents\"");
    commit();
    QCOMPARE(git(QStringLiteral("checkout -q main")).code, 0);
    const Outcome merge = git(QStringLiteral("merge theirs"));
    QCOMPARE(merge.code, 1);
    QVERIFY(git(QStringLiteral("status --porcelain"))
                .out.contains(QLatin1String("UU late.fishbone.json")));
    // Still a diagram, without git's marks, and with both titles.
    const QByteArray content = contentOf(document());
    QVERIFY(!QJsonDocument::fromJson(content).isNull());
    for (const char *part : {"Merge conflict", "\"Flu\"", "Accidents"})
        QVERIFY2(content.contains(part), part);
    QVERIFY(merge.err.contains(
        QLatin1String("\"Flu\": Its title is \"Flu\" in ours and \"Accidents\" in theirs.")));
}

void TestCommandLineMerge::shouldKeepOursWhenAFileCannotBeRead()
{
    const QString ours = path(QStringLiteral("ours"));
    const QString broken = path(QStringLiteral("broken"));
    writeFile(ours, diagram());
    writeFile(broken, "{");
    for (const QStringList &files :
         {QStringList{broken, ours, ours}, QStringList{ours, ours, broken},
          QStringList{path(QStringLiteral("none")), ours, ours}}) {
        const Outcome outcome =
            run(QStringList{QStringLiteral("merge")} + files, m_folder->environment());
        QCOMPARE(outcome.code, 1);
        QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: cannot read ")),
                 qPrintable(outcome.err));
        QCOMPARE(contentOf(ours), diagram());
    }
}

void TestCommandLineMerge::shouldTakeAnEmptyBase()
{
    const QString base = path(QStringLiteral("base"));
    const QString ours = path(QStringLiteral("ours"));
    writeFile(base, "");
    writeFile(ours, diagram());
    const Outcome outcome =
        run({QStringLiteral("merge"), base, ours, ours}, m_folder->environment());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);
    QVERIFY(contentOf(ours).contains("Illness"));
}

void TestCommandLineMerge::shouldRefuseWhatMakesNoSense_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const QString three =
        QStringLiteral("merge takes the files of the base, of ours and of theirs");
    QTest::newRow("none") << QStringList() << three;
    QTest::newRow("two") << QStringList{QStringLiteral("a"), QStringLiteral("b")} << three;
    QTest::newRow("json") << QStringList{QStringLiteral("--json")}
                          << QStringLiteral("--json does not go with merge");
}

void TestCommandLineMerge::shouldRefuseWhatMakesNoSense()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const Outcome outcome =
        run(QStringList{QStringLiteral("merge")} + arguments, m_folder->environment());
    QCOMPARE(outcome.err, QStringLiteral("fishbone: %1\n").arg(reason));
    QCOMPARE(outcome.code, 2);
}

void TestCommandLineMerge::shouldChangeALineForAField()
{
    begin();
    change("\"title\": \"Illness\"", "\"title\": \"Flu\"");
    // Through the program, which writes what it read in the same order.
    QCOMPARE(run({QStringLiteral("convert"), document(), document()}, m_folder->environment()).code,
             0);
    QCOMPARE(git(QStringLiteral("diff --numstat")).out,
             QStringLiteral("1\t1\tlate.fishbone.json\n"));
}

void TestCommandLineMerge::shouldShowHelpForTheCommand()
{
    const Outcome outcome =
        run({QStringLiteral("merge"), QStringLiteral("--help")}, m_folder->environment());
    QCOMPARE(outcome.code, 0);
    QVERIFY(outcome.out.contains(QLatin1String("merge base ours theirs")));
}

FISHBONE_GUILESS_TEST(TestCommandLineMerge)
#include "tst_commandline_merge.moc"
