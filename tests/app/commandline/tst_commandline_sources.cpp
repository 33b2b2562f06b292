// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>

#include <QJsonDocument>
#include <QJsonObject>

using namespace ProgramRunner;

/** What commands read and write that is no file: pipes and addresses. */
class TestCommandLineSources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadAndWritePipes();
    void shouldSayWhyAPipeCannotBeRead();
    void shouldNeedAFormatForAPipe();
    void shouldFetchADiagram();
    void shouldSayWhyNothingComes();
    void shouldRefuseAFormatForAnAddress();

private:
    Outcome pipe(const QStringList &arguments, const QByteArray &input) const;

    const Folder m_folder;
};

/** Runs the program with @p input on its standard input. */
Outcome TestCommandLineSources::pipe(const QStringList &arguments, const QByteArray &input) const
{
    QProcess process;
    process.setProcessEnvironment(m_folder.environment());
    process.start(program(), arguments);
    process.write(input);
    process.closeWriteChannel();
    return outcomeOf(process);
}

void TestCommandLineSources::shouldReadAndWritePipes()
{
    const QStringList arguments{QStringLiteral("convert"), QStringLiteral("--from"),
                                QStringLiteral("md"),      QStringLiteral("--to"),
                                QStringLiteral("txt"),     QStringLiteral("-"),
                                QStringLiteral("-")};
    const Outcome outcome = pipe(arguments, "# Zu sp\xC3\xA4t\n- People\n  - Ill\n");
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, QString::fromUtf8("Zu spät\n\tPeople\n\t\tIll\n"));
    QCOMPARE(outcome.code, 0);
}

void TestCommandLineSources::shouldSayWhyAPipeCannotBeRead()
{
    const Outcome outcome = pipe({QStringLiteral("info"), QStringLiteral("--from"),
                                  QStringLiteral("json"), QStringLiteral("-")},
                                 "{");
    QVERIFY2(outcome.err.startsWith(
                 QLatin1String("fishbone: cannot read -: it is not a JSON document (line 1: ")),
             qPrintable(outcome.err));
    QCOMPARE(outcome.code, 1);
}

void TestCommandLineSources::shouldNeedAFormatForAPipe()
{
    const QString to = m_folder.path(QStringLiteral("a.json"));
    for (const QStringList &files :
         {QStringList{QStringLiteral("-"), to}, QStringList{to, QStringLiteral("-")}}) {
        const Outcome outcome = pipe(QStringList{QStringLiteral("convert")} + files, "");
        QCOMPARE(outcome.code, 2);
        QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: the format of \"-\" is unknown")),
                 qPrintable(outcome.err));
    }
}

void TestCommandLineSources::shouldFetchADiagram()
{
    const Server server("HTTP/1.0 200 OK\r\nContent-Type: application/json\r\n\r\n" + diagram());
    QVERIFY(server.listens());
    const QString target = m_folder.path(QStringLiteral("fetched.txt"));
    const Outcome converted =
        runBesideServer({QStringLiteral("convert"), server.url(), target}, m_folder.environment());
    QCOMPARE(converted.err, QString());
    QCOMPARE(converted.code, 0);
    QVERIFY(contentOf(target).startsWith("Late\n\tPeople\n"));
    const Outcome info = runBesideServer(
        {QStringLiteral("info"), QStringLiteral("--json"), server.url()}, m_folder.environment());
    QCOMPARE(QJsonDocument::fromJson(info.out.toLatin1())
                 .object()
                 .value(QStringLiteral("subjects"))
                 .toInt(),
             5);
}

void TestCommandLineSources::shouldSayWhyNothingComes()
{
    const Server server("HTTP/1.0 404 Not Found\r\n\r\n");
    QVERIFY(server.listens());
    const QString target = m_folder.path(QStringLiteral("nothing.txt"));
    const Outcome outcome =
        runBesideServer({QStringLiteral("convert"), server.url(), target}, m_folder.environment());
    QVERIFY2(outcome.err.startsWith(QStringLiteral("fishbone: cannot read %1: ").arg(server.url())),
             qPrintable(outcome.err));
    QCOMPARE(outcome.code, 1);
    QVERIFY(!QFile::exists(target));
}

void TestCommandLineSources::shouldRefuseAFormatForAnAddress()
{
    const Outcome outcome = pipe({QStringLiteral("info"), QStringLiteral("--from"),
                                  QStringLiteral("md"), QStringLiteral("http://127.0.0.1/a.md")},
                                 "");
    QCOMPARE(outcome.err,
             QStringLiteral("fishbone: --from does not go with a document from the network\n"));
    QCOMPARE(outcome.code, 2);
}

FISHBONE_GUILESS_TEST(TestCommandLineSources)
#include "tst_commandline_sources.moc"
