// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>

using namespace ProgramRunner;

class TestStartUp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNeedNoPlatformToSaySomething_data();
    void shouldNeedNoPlatformToSaySomething();
    void shouldLoadAPlatformToDraw();
    void shouldLeaveOutWhatTheToolkitTakes();

private:
    /** An environment in which the program cannot draw in a window, and says which libraries it
     * loads. */
    QProcessEnvironment environment() const;
    /** Whether a run loaded a platform of the toolkit. */
    static bool hasPlatform(const Outcome &outcome)
    {
        return outcome.err.contains(QLatin1String("/platforms/"));
    }

    Folder m_folder;
};

QProcessEnvironment TestStartUp::environment() const
{
    QProcessEnvironment environment = m_folder.environment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("nowhere"));
    environment.insert(QStringLiteral("LD_DEBUG"), QStringLiteral("files"));
    return environment;
}

void TestStartUp::shouldNeedNoPlatformToSaySomething_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");

    QTest::newRow("version") << QStringList{QStringLiteral("--version")} << 0;
    QTest::newRow("help") << QStringList{QStringLiteral("--help")} << 0;
    QTest::newRow("help on a command")
        << QStringList{QStringLiteral("convert"), QStringLiteral("--help")} << 0;
    QTest::newRow("in another language")
        << QStringList{QStringLiteral("--language"), QStringLiteral("ar"), QStringLiteral("--help")}
        << 0;
    QTest::newRow("what is wrong") << QStringList{QStringLiteral("--nonsense")} << 2;
}

void TestStartUp::shouldNeedNoPlatformToSaySomething()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);

    const Outcome outcome = run(arguments, environment());
    QCOMPARE(outcome.code, code);
    QVERIFY2(outcome.err.contains(QLatin1String("file=")), "libraries are not listed");
    QVERIFY(!hasPlatform(outcome));
}

void TestStartUp::shouldLoadAPlatformToDraw()
{
    const Outcome outcome =
        run({QStringLiteral("--export"), m_folder.picture(), m_folder.document()}, environment());
    QCOMPARE(outcome.code, 0);
    QVERIFY(hasPlatform(outcome));
}

void TestStartUp::shouldLeaveOutWhatTheToolkitTakes()
{
    const Outcome outcome =
        run({QStringLiteral("-platform"), QStringLiteral("nowhere"), QStringLiteral("--version"),
             QStringLiteral("-style"), QStringLiteral("nothing")},
            m_folder.environment());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);
    QVERIFY(outcome.out.startsWith(QLatin1String("fishbone ")));
}

FISHBONE_GUILESS_TEST(TestStartUp)
#include "tst_startup.moc"
