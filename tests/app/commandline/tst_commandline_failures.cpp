// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>

#include <QImage>

#include <algorithm>

using namespace ProgramRunner;

class TestCommandLineFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldRefuseWhatMakesNoSense_data();
    void shouldRefuseWhatMakesNoSense();
    void shouldSayWhyADocumentCannotBeRead_data();
    void shouldSayWhyADocumentCannotBeRead();
    void shouldSayWhyThePictureCannotBeWritten_data();
    void shouldSayWhyThePictureCannotBeWritten();
    void shouldSayWhichScaleFits();
    void shouldKeepThePictureThatWasThereOnFailure();
    void shouldSayWhyADocumentCannotBeFetched_data();
    void shouldSayWhyADocumentCannotBeFetched();
    void shouldSayThatAWindowNeedsADisplay();
    void shouldSayThatTheDisplayDoesNotAnswer();
    void shouldGoOnInTheWindowWithoutADocumentThatFails();

private:
    QString path(const QString &name) const { return m_folder->path(name); }
    QString document() const { return m_folder->document(); }
    QString picture() const { return m_folder->picture(); }
    QProcessEnvironment environment() const { return m_folder->environment(); }

    QScopedPointer<Folder> m_folder;
};

void TestCommandLineFailures::init()
{
    m_folder.reset(new Folder);
}

void TestCommandLineFailures::shouldRefuseWhatMakesNoSense_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("mentions");

    const auto row = [](const char *name, const char *arguments, const char *mentions) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '))
                            << QString::fromLatin1(mentions).split(QLatin1Char('|'));
    };
    row("unknown option", "--nonsense", "nonsense");
    row("unknown short option", "-x", "x");
    row("unknown format", "--export a.jpg d.json", "a.jpg|.png|.svg|.pdf");
    row("no format", "--export picture d.json", "picture|.png");
    row("no target", "--export", "export");
    row("no document", "--export a.png", "--export|one document");
    row("two documents", "--export a.png d.json e.json", "--export|one document|2");
    row("size and scale", "--export a.png --size 10x10 --scale 2 d.json", "--size|--scale");
    row("size without export", "--size 10x10 d.json", "--size|--export");
    row("scale without export", "--scale 2 d.json", "--scale|--export");
    row("expand without export", "--expand all d.json", "--expand|--export");
    row("background without export", "--background red d.json", "--background|--export");
    row("expand what", "--export a.png --expand some d.json", "--expand|some");
    row("negative levels", "--export a.png --expand=-1 d.json", "--expand|-1");
    row("half levels", "--export a.png --expand 1.5 d.json", "--expand|1.5");
    row("one length", "--export a.png --size 100 d.json", "--size|100");
    row("no length", "--export a.png --size 0x100 d.json", "--size|0x100");
    row("negative length", "--export a.png --size=-1x100 d.json", "--size|-1x100");
    row("no scale", "--export a.png --scale 0 d.json", "--scale|0");
    row("negative scale", "--export a.png --scale=-2 d.json", "--scale|-2");
    row("infinite scale", "--export a.png --scale inf d.json", "--scale|inf");
    row("undefined scale", "--export a.png --scale nan d.json", "--scale|nan");
    row("scale in words", "--export a.png --scale two d.json", "--scale|two");
    row("no colour", "--export a.png --background reddish d.json", "--background|reddish");
    row("unknown language", "--language xx", "--language|xx|zh|en");
    row("no language", "--language", "language");
}

void TestCommandLineFailures::shouldRefuseWhatMakesNoSense()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, mentions);

    QProcessEnvironment hostile = environment();
    hostile.insert(QStringLiteral("DISPLAY"), QStringLiteral(":4711"));
    const Outcome outcome = run(arguments, hostile);
    verifyUsageError(outcome, mentions);
}

void TestCommandLineFailures::shouldSayWhyADocumentCannotBeRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content"); ///< null: there is no such file
    QTest::addColumn<QString>("reason");

    const auto row = [](const char *title, const QByteArray &content, const char *reason) {
        QTest::newRow(title) << QStringLiteral("bad.json") << content
                             << QString::fromLatin1(reason);
    };
    row("missing", QByteArray(), "no such file");
    row("empty", "", "empty");
    row("broken", "{\"title\": \"a\",\n\n \"uuid\": }", "line 3");
    row("cut off", "{\"title\": \"a\"", "not a JSON document");
    row("no JSON", "<html></html>", "not a JSON document");
    row("an array", "[{\"title\": \"a\"}]", "a JSON list");
    row("an empty object", "{}", "no diagram");
    QTest::newRow("folder") << QStringLiteral(".") << QByteArray() << QStringLiteral("folder");
}

void TestCommandLineFailures::shouldSayWhyADocumentCannotBeRead()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    if (!content.isNull())
        writeFile(path(name), content);

    const Outcome outcome = run({QStringLiteral("--export"), picture(), path(name)}, environment());
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: cannot read ") + path(name)),
             qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(reason), qPrintable(outcome.err));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
    QVERIFY(!QFile::exists(picture()));
}

void TestCommandLineFailures::shouldSayWhyThePictureCannotBeWritten_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("reason");

    QTest::newRow("folder is missing") << QStringLiteral("missing/a.png") << QStringList()
                                       << QStringLiteral("No such file or directory");
    QTest::newRow("is a folder") << QStringLiteral("folder.png") << QStringList()
                                 << QStringLiteral("directory");
    QTest::newRow("too wide") << QStringLiteral("a.png")
                              << QStringList{QStringLiteral("--size=40000x10")}
                              << QStringLiteral("too large");
    QTest::newRow("scaled too far")
        << QStringLiteral("a.png") << QStringList{QStringLiteral("--scale=1e9")}
        << QStringLiteral("too large");
}

void TestCommandLineFailures::shouldSayWhyThePictureCannotBeWritten()
{
    QFETCH(QString, target);
    QFETCH(QStringList, options);
    QFETCH(QString, reason);
    QVERIFY(QDir().mkdir(path(QStringLiteral("folder.png"))));

    const Outcome outcome = run(QStringList{QStringLiteral("--export"), path(target)} + options +
                                    QStringList(document()),
                                environment());
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: cannot write ") + path(target)),
             qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(reason), qPrintable(outcome.err));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
}

/** The largest picture that there can be has as many bytes, four a pixel. */
void TestCommandLineFailures::shouldSayWhichScaleFits()
{
    QByteArray titles("Late\n");
    for (int category = 0; category < 8; ++category) {
        titles += "\tCategory " + QByteArray::number(category) + '\n';
        for (int cause = 0; cause < 43; ++cause)
            titles += "\t\tCause " + QByteArray::number(cause) + '\n';
    }
    QCOMPARE(titles.count('\n'), 353);
    const QString source = path(QStringLiteral("many.txt"));
    writeFile(source, titles);
    const auto exported = [&](const QString &scale) {
        return run(
            {QStringLiteral("--scale"), scale, QStringLiteral("--export"), picture(), source},
            environment());
    };
    QCOMPARE(exported(QStringLiteral("1")).code, 0);
    const QSize plain = QImage(picture()).size();
    QVERIFY(QFile::remove(picture()));

    const Outcome outcome = exported(QStringLiteral("60"));
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
    QVERIFY(!QFile::exists(picture()));
    const QRegularExpression offer(QStringLiteral("it fits at a scale of ([0-9.]+)\n$"));
    const QRegularExpressionMatch match = offer.match(outcome.err);
    QVERIFY2(match.hasMatch(), qPrintable(outcome.err));

    const double scale = match.captured(1).toDouble();
    const double bytes = 4.0 * plain.width() * plain.height() * scale * scale;
    const double share = std::max({bytes / (1024.0 * 1024 * 1024), plain.width() * scale / 32767,
                                   plain.height() * scale / 32767});
    QVERIFY2(share > 0.99 && share < 1.01, qPrintable(QString::number(share)));
    QCOMPARE(exported(QString::number(scale * 1.01)).code, 1);
}

void TestCommandLineFailures::shouldKeepThePictureThatWasThereOnFailure()
{
    writeFile(picture(), "old");
    writeFile(document(), "{");
    QCOMPARE(run({QStringLiteral("--export"), picture(), document()}, environment()).code, 1);
    QCOMPARE(contentOf(picture()), QByteArray("old"));
}

void TestCommandLineFailures::shouldSayWhyADocumentCannotBeFetched_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("reason");

    QTest::newRow("not found") << QByteArray("HTTP/1.0 404 Not Found\r\n\r\n{\"title\": \"a\"}")
                               << QStringLiteral("Not Found");
    QTest::newRow("no JSON") << QByteArray("HTTP/1.0 200 OK\r\n\r\n<html></html>")
                             << QStringLiteral("not a JSON document");
    QTest::newRow("no diagram") << QByteArray("HTTP/1.0 200 OK\r\n\r\n[]")
                                << QStringLiteral("no diagram");
}

void TestCommandLineFailures::shouldSayWhyADocumentCannotBeFetched()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, reason);
    const Server server(reply);
    QVERIFY(server.listens());

    const Outcome outcome =
        runBesideServer({QStringLiteral("--export"), picture(), server.url()}, environment());
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: cannot read ") + server.url()),
             qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(reason), qPrintable(outcome.err));
    QVERIFY(!QFile::exists(picture()));
}

void TestCommandLineFailures::shouldSayThatAWindowNeedsADisplay()
{
    const Outcome outcome = run({document()}, environment());
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: ")), qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(QLatin1String("display")), qPrintable(outcome.err));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
}

void TestCommandLineFailures::shouldSayThatTheDisplayDoesNotAnswer()
{
    QProcessEnvironment unreachable = environment();
    unreachable.insert(QStringLiteral("DISPLAY"), QStringLiteral(":4711"));
    unreachable.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    const Outcome outcome = run({document()}, unreachable);
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: ")), qPrintable(outcome.err));
}

void TestCommandLineFailures::shouldGoOnInTheWindowWithoutADocumentThatFails()
{
    QProcessEnvironment offscreen = environment();
    offscreen.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    QProcess process;
    process.setProcessEnvironment(offscreen);
    const QString missing = path(QStringLiteral("missing.json"));
    process.start(ProgramRunner::program(), {document(), missing});
    QString err;
    QVERIFY(QTest::qWaitFor(
        [&] {
            err += QString::fromUtf8(process.readAllStandardError());
            return err.contains(QLatin1String("cannot open ") + missing);
        },
        timeLimit));
    QVERIFY2(err.contains(QLatin1String("no such file")), qPrintable(err));
    QVERIFY2(!err.contains(document()), qPrintable(err));
    QCOMPARE(process.state(), QProcess::Running);
    process.kill();
    QVERIFY(process.waitForFinished(timeLimit));
}

FISHBONE_GUILESS_TEST(TestCommandLineFailures)
#include "tst_commandline_failures.moc"
