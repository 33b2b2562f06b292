// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int limit = 30000; ///< milliseconds that the program may take for anything

struct Outcome
{
    int code = -1; ///< -1 when the program crashed or took too long
    QString out;
    QString err;
};

QProcessEnvironment bareEnvironment(const QString &home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QStringList names = environment.keys();
    for (const QString &name : names) {
        if (name.startsWith(QLatin1String("QT_")) || name.startsWith(QLatin1String("XDG_")))
            environment.remove(name);
    }
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    return environment;
}

Outcome run(const QStringList &arguments, const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(FISHBONE_PROGRAM), arguments);
    Outcome outcome;
    if (process.waitForFinished(limit) && process.exitStatus() == QProcess::NormalExit)
        outcome.code = process.exitCode();
    outcome.out = QString::fromUtf8(process.readAllStandardOutput());
    outcome.err = QString::fromUtf8(process.readAllStandardError());
    return outcome;
}

QByteArray diagram()
{
    return R"({"title": "Late", "uuid": "h", "children": [
        {"title": "People", "uuid": "a", "children": [
            {"title": "Too few", "uuid": "b", "children": [{"title": "Illness", "uuid": "c"}]}]},
        {"title": "Machines", "uuid": "d", "children": []}]})";
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** A web server that gives every visitor the same reply. */
class Server
{
public:
    explicit Server(const QByteArray &reply)
    {
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this, reply] {
            QTcpSocket *const socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket, reply] {
                if (!socket->readAll().contains("\r\n\r\n"))
                    return;
                socket->write(reply);
                socket->disconnectFromHost();
            });
        });
        m_listens = m_server.listen(QHostAddress::LocalHost);
    }

    bool listens() const { return m_listens; }
    QString url() const
    {
        return QStringLiteral("http://127.0.0.1:%1/diagram.json").arg(m_server.serverPort());
    }

private:
    QTcpServer m_server;
    bool m_listens = false;
};

/** As run(), with an event loop, so that a server of this process can reply meanwhile. */
Outcome runBesideServer(const QStringList &arguments, const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(FISHBONE_PROGRAM), arguments);
    Outcome outcome;
    if (QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, limit)
        && process.exitStatus() == QProcess::NormalExit)
        outcome.code = process.exitCode();
    outcome.out = QString::fromUtf8(process.readAllStandardOutput());
    outcome.err = QString::fromUtf8(process.readAllStandardError());
    return outcome;
}

} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void shouldExportEveryFormat_data();
    void shouldExportEveryFormat();
    void shouldExportTheSameWhateverTheEnvironment_data();
    void shouldExportTheSameWhateverTheEnvironment();
    void shouldExpandAsAsked_data();
    void shouldExpandAsAsked();
    void shouldMakeThePictureAsLargeAsAsked();
    void shouldFillTheBackgroundAsAsked_data();
    void shouldFillTheBackgroundAsAsked();
    void shouldTakeTheOptionsInAnyOrder();
    void shouldRefuseWhatMakesNoSense_data();
    void shouldRefuseWhatMakesNoSense();
    void shouldSayWhyADocumentCannotBeRead_data();
    void shouldSayWhyADocumentCannotBeRead();
    void shouldSayWhyThePictureCannotBeWritten_data();
    void shouldSayWhyThePictureCannotBeWritten();
    void shouldKeepThePictureThatWasThereOnFailure();
    void shouldExportWhatItFetches();
    void shouldSayWhyADocumentCannotBeFetched_data();
    void shouldSayWhyADocumentCannotBeFetched();
    void shouldShowHelpAndVersionWithoutADisplay_data();
    void shouldShowHelpAndVersionWithoutADisplay();
    void shouldNameAllOptionsInTheHelp();
    void shouldSayThatAWindowNeedsADisplay();
    void shouldSayThatTheDisplayDoesNotAnswer();
    void shouldGoOnInTheWindowWithoutADocumentThatFails();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString document() const { return path(QStringLiteral("diagram.json")); }
    QString picture() const { return path(QStringLiteral("picture.png")); }
    QProcessEnvironment environment() const { return bareEnvironment(m_folder->path()); }
    QImage exported(const QStringList &options);

    QScopedPointer<QTemporaryDir> m_folder;
};

void TestCommandLine::init()
{
    m_folder.reset(new QTemporaryDir);
    writeFile(document(), diagram());
}

void TestCommandLine::cleanup()
{
    m_folder.reset();
}

/** The picture that the program draws with these options; null when it fails. */
QImage TestCommandLine::exported(const QStringList &options)
{
    QFile::remove(picture());
    const QStringList arguments =
        QStringList{QStringLiteral("--export"), picture()} + options + QStringList(document());
    const Outcome outcome = run(arguments, environment());
    if (outcome.code != 0 || !outcome.out.isEmpty() || !outcome.err.isEmpty()) {
        qWarning().noquote() << outcome.code << outcome.out << outcome.err;
        return {};
    }
    return QImage(picture());
}

void TestCommandLine::shouldExportEveryFormat_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QByteArray>("beginning");

    QTest::newRow("png") << QStringLiteral("png") << QByteArray("\x89PNG");
    QTest::newRow("svg") << QStringLiteral("svg") << QByteArray("<?xml");
    QTest::newRow("pdf") << QStringLiteral("pdf") << QByteArray("%PDF-");
    QTest::newRow("capitals") << QStringLiteral("PNG") << QByteArray("\x89PNG");
}

void TestCommandLine::shouldExportEveryFormat()
{
    QFETCH(QString, suffix);
    QFETCH(QByteArray, beginning);

    const QString target = path(QStringLiteral("picture.") + suffix);
    const Outcome outcome = run({QStringLiteral("--export"), target, document()}, environment());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);
    QVERIFY(contentOf(target).startsWith(beginning));
}

void TestCommandLine::shouldExportTheSameWhateverTheEnvironment_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("value"); ///< null: unset
    QTest::addColumn<QStringList>("arguments");

    const auto row = [](const char *name, const char *value) {
        QTest::newRow(qPrintable(QStringLiteral("%1=%2").arg(QLatin1String(name),
                                                             QLatin1String(value))))
            << QString::fromLatin1(name) << QString::fromLatin1(value) << QStringList();
    };
    row("DISPLAY", ":4711");
    row("DISPLAY", "nonsense");
    row("WAYLAND_DISPLAY", "nonsense");
    row("QT_QPA_PLATFORM", "xcb");
    row("QT_QPA_PLATFORM", "wayland");
    row("QT_QPA_PLATFORM", "nonsense");
    row("QT_QPA_PLATFORM", "minimal");
    row("QT_QPA_PLATFORMTHEME", "gtk3");
    row("QT_STYLE_OVERRIDE", "nonsense");
    row("QT_SCALE_FACTOR", "3");
    row("QT_FONT_DPI", "200");
    row("XDG_RUNTIME_DIR", "/nonexistent");
    row("LC_ALL", "zh_CN.UTF-8");
    QTest::newRow("no home") << QStringLiteral("HOME") << QString() << QStringList();
    QTest::newRow("platform argument")
        << QStringLiteral("A") << QStringLiteral("b")
        << QStringList{QStringLiteral("-platform"), QStringLiteral("xcb")};
}

void TestCommandLine::shouldExportTheSameWhateverTheEnvironment()
{
    QFETCH(QString, variable);
    QFETCH(QString, value);
    QFETCH(QStringList, arguments);
    const QImage expected = exported({});
    QVERIFY(!expected.isNull());
    QVERIFY(QFile::remove(picture()));

    QProcessEnvironment changed = environment();
    if (value.isNull())
        changed.remove(variable);
    else
        changed.insert(variable, value);
    const Outcome outcome = run(
        arguments + QStringList{QStringLiteral("--export"), picture(), document()}, changed);
    QVERIFY2(outcome.code == 0, qPrintable(outcome.err));
    QCOMPARE(QImage(picture()), expected);
}

void TestCommandLine::shouldExpandAsAsked_data()
{
    QTest::addColumn<QString>("less");
    QTest::addColumn<QString>("more");
    QTest::addColumn<bool>("differ");

    const auto row = [](const char *less, const char *more, bool differ) {
        QTest::newRow(qPrintable(QStringLiteral("%1 and %2").arg(QLatin1String(less),
                                                                 QLatin1String(more))))
            << QString::fromLatin1(less) << QString::fromLatin1(more) << differ;
    };
    // The deepest subject is two levels below the main bones.
    row("none", "1", true);
    row("1", "2", true);
    row("0", "none", false);
    row("2", "all", false);
    row("2", "99", false);
}

void TestCommandLine::shouldExpandAsAsked()
{
    QFETCH(QString, less);
    QFETCH(QString, more);
    QFETCH(bool, differ);

    const QImage smaller = exported({QStringLiteral("--expand"), less});
    const QImage larger = exported({QStringLiteral("--expand"), more});
    QVERIFY(!smaller.isNull());
    QVERIFY(!larger.isNull());
    if (differ)
        QVERIFY(smaller.width() * smaller.height() < larger.width() * larger.height());
    else
        QCOMPARE(smaller, larger);
    if (more == QLatin1String("all"))
        QCOMPARE(exported({}), larger); // the default
}

void TestCommandLine::shouldMakeThePictureAsLargeAsAsked()
{
    QCOMPARE(exported({QStringLiteral("--size"), QStringLiteral("321x123")}).size(),
             QSize(321, 123));
    QCOMPARE(exported({QStringLiteral("--size=500X400")}).size(), QSize(500, 400));
    const QSize plain = exported({}).size();
    const QSize doubled = exported({QStringLiteral("--scale"), QStringLiteral("2")}).size();
    QVERIFY(qAbs(doubled.width() - 2 * plain.width()) <= 2);
    QVERIFY(qAbs(doubled.height() - 2 * plain.height()) <= 2);
    QVERIFY(exported({QStringLiteral("--scale=0.5")}).width() < plain.width());
}

void TestCommandLine::shouldFillTheBackgroundAsAsked_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QColor>("corner");

    QTest::newRow("default") << QStringList() << QColor(Qt::white);
    QTest::newRow("name") << QStringList{QStringLiteral("--background=yellow")}
                          << QColor(Qt::yellow);
    QTest::newRow("number") << QStringList{QStringLiteral("--background"),
                                           QStringLiteral("#102030")}
                            << QColor(0x10, 0x20, 0x30);
    QTest::newRow("transparent") << QStringList{QStringLiteral("--background=transparent")}
                                 << QColor(0, 0, 0, 0);
}

void TestCommandLine::shouldFillTheBackgroundAsAsked()
{
    QFETCH(QStringList, options);
    QFETCH(QColor, corner);

    const QImage image = exported(options);
    QVERIFY(!image.isNull());
    QCOMPARE(image.pixelColor(0, 0), corner);
    QCOMPARE(image.pixelColor(image.width() - 1, image.height() - 1), corner);
}

void TestCommandLine::shouldTakeTheOptionsInAnyOrder()
{
    const Outcome outcome = run({document(), QStringLiteral("--expand=none"),
                                 QStringLiteral("--export"), picture()},
                                environment());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);
    QVERIFY(!QImage(picture()).isNull());
}

void TestCommandLine::shouldRefuseWhatMakesNoSense_data()
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
    row("unknown language", "--language fr", "--language|fr|zh|en");
    row("no language", "--language", "language");
}

void TestCommandLine::shouldRefuseWhatMakesNoSense()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, mentions);

    QProcessEnvironment hostile = environment();
    hostile.insert(QStringLiteral("DISPLAY"), QStringLiteral(":4711"));
    const Outcome outcome = run(arguments, hostile);
    QCOMPARE(outcome.code, 2);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: ")), qPrintable(outcome.err));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
    for (const QString &mention : mentions)
        QVERIFY2(outcome.err.contains(mention), qPrintable(outcome.err));
}

void TestCommandLine::shouldSayWhyADocumentCannotBeRead_data()
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
    row("an array", "[{\"title\": \"a\"}]", "no diagram");
    row("an empty object", "{}", "no diagram");
    QTest::newRow("folder") << QStringLiteral(".") << QByteArray() << QStringLiteral("folder");
}

void TestCommandLine::shouldSayWhyADocumentCannotBeRead()
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

void TestCommandLine::shouldSayWhyThePictureCannotBeWritten_data()
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
    QTest::newRow("scaled too far") << QStringLiteral("a.png")
                                    << QStringList{QStringLiteral("--scale=1e9")}
                                    << QStringLiteral("too large");
}

void TestCommandLine::shouldSayWhyThePictureCannotBeWritten()
{
    QFETCH(QString, target);
    QFETCH(QStringList, options);
    QFETCH(QString, reason);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder.png")));

    const Outcome outcome =
        run(QStringList{QStringLiteral("--export"), path(target)} + options + QStringList(document()),
            environment());
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: cannot write ") + path(target)),
             qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(reason), qPrintable(outcome.err));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
}

void TestCommandLine::shouldKeepThePictureThatWasThereOnFailure()
{
    writeFile(picture(), "old");
    writeFile(document(), "{");
    QCOMPARE(run({QStringLiteral("--export"), picture(), document()}, environment()).code, 1);
    QCOMPARE(contentOf(picture()), QByteArray("old"));
}

void TestCommandLine::shouldExportWhatItFetches()
{
    const QImage expected = exported({});
    QVERIFY(QFile::remove(picture()));
    const Server server("HTTP/1.0 200 OK\r\nContent-Type: application/json\r\n\r\n" + diagram());
    QVERIFY(server.listens());

    const Outcome outcome = runBesideServer(
        {QStringLiteral("--export"), picture(), server.url()}, environment());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);
    QCOMPARE(QImage(picture()), expected);
}

void TestCommandLine::shouldSayWhyADocumentCannotBeFetched_data()
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

void TestCommandLine::shouldSayWhyADocumentCannotBeFetched()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, reason);
    const Server server(reply);
    QVERIFY(server.listens());

    const Outcome outcome = runBesideServer(
        {QStringLiteral("--export"), picture(), server.url()}, environment());
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: cannot read ") + server.url()),
             qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(reason), qPrintable(outcome.err));
    QVERIFY(!QFile::exists(picture()));
}

void TestCommandLine::shouldShowHelpAndVersionWithoutADisplay_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("text");

    QTest::newRow("--help") << QStringLiteral("--help") << QStringLiteral("Usage: ");
    QTest::newRow("-h") << QStringLiteral("-h") << QStringLiteral("Usage: ");
    QTest::newRow("--version") << QStringLiteral("--version") << QStringLiteral("fishbone ");
    QTest::newRow("-v") << QStringLiteral("-v") << QStringLiteral("fishbone ");
}

void TestCommandLine::shouldShowHelpAndVersionWithoutADisplay()
{
    QFETCH(QString, option);
    QFETCH(QString, text);

    const Outcome outcome = run({option}, environment());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);
    QVERIFY2(outcome.out.startsWith(text), qPrintable(outcome.out));
    QVERIFY(outcome.out.endsWith(QLatin1Char('\n')));
}

void TestCommandLine::shouldNameAllOptionsInTheHelp()
{
    const Outcome outcome = run({QStringLiteral("--help")}, environment());
    for (const char *option : {"--export", "--expand", "--size", "--scale", "--background",
                               "--language", "--help", "--version"})
        QVERIFY2(outcome.out.contains(QLatin1String(option)), option);
    const QRegularExpression version(QStringLiteral("^fishbone [0-9]+\\.[0-9]+\\.[0-9]+\n$"));
    QVERIFY(version.match(run({QStringLiteral("--version")}, environment()).out).hasMatch());
}

void TestCommandLine::shouldSayThatAWindowNeedsADisplay()
{
    const Outcome outcome = run({document()}, environment());
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: ")), qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(QLatin1String("display")), qPrintable(outcome.err));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
}

void TestCommandLine::shouldSayThatTheDisplayDoesNotAnswer()
{
    QProcessEnvironment unreachable = environment();
    unreachable.insert(QStringLiteral("DISPLAY"), QStringLiteral(":4711"));
    unreachable.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    const Outcome outcome = run({document()}, unreachable);
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: ")), qPrintable(outcome.err));
}

void TestCommandLine::shouldGoOnInTheWindowWithoutADocumentThatFails()
{
    QProcessEnvironment offscreen = environment();
    offscreen.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    QProcess process;
    process.setProcessEnvironment(offscreen);
    const QString missing = path(QStringLiteral("missing.json"));
    process.start(QStringLiteral(FISHBONE_PROGRAM), {document(), missing});
    QString err;
    QVERIFY(QTest::qWaitFor(
        [&] {
            err += QString::fromUtf8(process.readAllStandardError());
            return err.contains(QLatin1String("cannot open ") + missing);
        },
        limit));
    QVERIFY2(err.contains(QLatin1String("no such file")), qPrintable(err));
    QVERIFY2(!err.contains(document()), qPrintable(err));
    QCOMPARE(process.state(), QProcess::Running);
    process.kill();
    QVERIFY(process.waitForFinished(limit));
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
