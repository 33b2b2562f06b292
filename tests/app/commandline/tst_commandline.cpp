// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/commandoptions.h>
#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>
#include <tests/support/pictures.h>
#include <tests/support/sourcefolder.h>

#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/ziparchive.h>

#include <QImage>
#include <QStandardPaths>

using namespace ProgramRunner;

class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldExportEveryFormat_data();
    void shouldExportEveryFormat();
    void shouldExportAFileOfAnotherProgram();
    void shouldExportTheSameWhateverTheEnvironment_data();
    void shouldExportTheSameWhateverTheEnvironment();
    void shouldDrawInTheStyleOfTheUser();
    void shouldExpandAsAsked_data();
    void shouldExpandAsAsked();
    void shouldDrawForAPage_data();
    void shouldDrawForAPage();
    void shouldDrawASlideInTheLookForAPage();
    void shouldMakeAPdfOfThePage_data();
    void shouldMakeAPdfOfThePage();
    void shouldArrangeForWhatTheMarginsLeave();
    void shouldExplainTheIconsUnlessAskedNotTo();
    void shouldMakeThePictureAsLargeAsAsked();
    void shouldFillTheBackgroundAsAsked_data();
    void shouldFillTheBackgroundAsAsked();
    void shouldTakeTheOptionsInAnyOrder();
    void shouldExportWhatItFetches();
    void shouldShowHelpAndVersionWithoutADisplay_data();
    void shouldShowHelpAndVersionWithoutADisplay();
    void shouldNameAllOptionsInTheHelp();

private:
    QString path(const QString &name) const { return m_folder->path(name); }
    QString document() const { return m_folder->document(); }
    QString picture() const { return m_folder->picture(); }
    QProcessEnvironment environment() const { return m_folder->environment(); }
    QImage exported(const QStringList &options);
    QByteArray drawnSample(const QString &name, const QStringList &options);

    QScopedPointer<Folder> m_folder;
};

void TestCommandLine::init()
{
    m_folder.reset(new Folder);
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
    QTest::newRow("html") << QStringLiteral("html") << QByteArray("<!DOCTYPE html>");
    QTest::newRow("pptx") << QStringLiteral("pptx") << QByteArray("PK");
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

void TestCommandLine::shouldExportAFileOfAnotherProgram()
{
    const QString source = path(QStringLiteral("late.txt"));
    QFile file(source);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Late\n\tPeople\n");
    file.close();
    const Outcome outcome = run({QStringLiteral("--export"), picture(), source}, environment());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);
    QCOMPARE(QImage(picture()).text(QStringLiteral("Title")), QStringLiteral("Late"));
}

void TestCommandLine::shouldExportTheSameWhateverTheEnvironment_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("value"); ///< null: unset
    QTest::addColumn<QStringList>("arguments");

    const auto row = [](const char *name, const char *value) {
        QTest::newRow(
            qPrintable(QStringLiteral("%1=%2").arg(QLatin1String(name), QLatin1String(value))))
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
    const Outcome outcome =
        run(arguments + QStringList{QStringLiteral("--export"), picture(), document()}, changed);
    QVERIFY2(outcome.code == 0, qPrintable(outcome.err));
    QCOMPARE(QImage(picture()), expected);
}

void TestCommandLine::shouldDrawInTheStyleOfTheUser()
{
    const QTemporaryDir home;
    const QProcessEnvironment environment = ProgramRunner::bareEnvironment(home.path());
    const QString source = home.filePath(QStringLiteral("a.json"));
    ProgramRunner::writeFile(source, ProgramRunner::diagram());
    const auto exported = [&] {
        const QString target = home.filePath(QStringLiteral("a.png"));
        ProgramRunner::run({source, QStringLiteral("--look=classic"), // in which titles are cut
                            QStringLiteral("--export"), target},
                           environment);
        return ProgramRunner::contentOf(target);
    };
    const QByteArray usual = exported();
    QVERIFY(!usual.isEmpty());
    const QString folder = home.filePath(QStringLiteral(".local/share/Fishbone/Fishbone"));
    QVERIFY(QDir().mkpath(folder));
    ProgramRunner::writeFile(folder + QStringLiteral("/global.spearstyle"), R"({"textCount": 1})");
    const QByteArray own = exported();
    QVERIFY(!own.isEmpty());
    QVERIFY(own != usual);
}

void TestCommandLine::shouldExpandAsAsked_data()
{
    QTest::addColumn<QString>("less");
    QTest::addColumn<QString>("more");
    QTest::addColumn<bool>("differ");

    const auto row = [](const char *less, const char *more, bool differ) {
        QTest::newRow(
            qPrintable(QStringLiteral("%1 and %2").arg(QLatin1String(less), QLatin1String(more))))
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

    // The clear look would arrange what is left anew.
    const QString look = QStringLiteral("--look=classic");
    const QImage smaller = exported({look, QStringLiteral("--expand"), less});
    const QImage larger = exported({look, QStringLiteral("--expand"), more});
    QVERIFY(!smaller.isNull());
    QVERIFY(!larger.isNull());
    if (differ)
        QVERIFY(smaller.width() * smaller.height() < larger.width() * larger.height());
    else
        QCOMPARE(smaller, larger);
    if (more == QLatin1String("all"))
        QCOMPARE(exported({look}), larger); // the default
}

void TestCommandLine::shouldDrawForAPage_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QSize>("size");
    QTest::newRow("slide") << QStringLiteral("16:9") << QSize(1920, 1080);
    QTest::newRow("pixels") << QStringLiteral("400x300") << QSize(400, 300);
    QTest::newRow("named pixels") << QStringLiteral("400x300px") << QSize(400, 300);
    QTest::newRow("millimetres") << QStringLiteral("127x63.5mm") << QSize(960, 480);
    QTest::newRow("paper") << QStringLiteral("a4") << QSize(2245, 1587);
    QTest::newRow("nothing") << QStringLiteral("0x300") << QSize();
    QTest::newRow("no page") << QStringLiteral("B7") << QSize();
}

void TestCommandLine::shouldDrawForAPage()
{
    QFETCH(QString, page);
    QFETCH(QSize, size);
    const QStringList arguments{QStringLiteral("--page"), page, QStringLiteral("--export"),
                                picture(), document()};
    QCOMPARE(run(arguments + QStringList(QStringLiteral("--look=classic")), environment()).code,
             2); // it has no pages
    if (size.isEmpty()) {
        QCOMPARE(run(arguments, environment()).code, 2);
        return;
    }
    const QImage image = exported({QStringLiteral("--page"), page});
    QCOMPARE(image.size(), size);
    QVERIFY(exported({QStringLiteral("--head=left"), QStringLiteral("--page"), page}) != image);
    QVERIFY(exported({QStringLiteral("--palette=gray"), QStringLiteral("--page"), page}) != image);
}

void TestCommandLine::shouldDrawASlideInTheLookForAPage()
{
    const QString slide = path(QStringLiteral("slide.pptx"));
    const auto partOf = [&](const QStringList &options, const QString &part) {
        QFile::remove(slide);
        if (run(options + QStringList{QStringLiteral("--export"), slide, document()}, environment())
                .code != 0)
            return QByteArray("not written");
        QFile file(slide);
        const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        ImportedTree tree;
        ZipReader archive(bytes, tree);
        return archive.file(part).value_or(QByteArray("no such part"));
    };
    const QString presentation = QStringLiteral("ppt/presentation.xml");
    const QString shapes = QStringLiteral("ppt/slides/slide1.xml");
    const QString page = QStringLiteral("--page");
    QVERIFY(partOf({}, presentation).contains("<p:sldSz cx=\"12192000\" cy=\"6858000\"/>"));
    QVERIFY(partOf({page, QStringLiteral("1024x768")}, presentation)
                .contains("<p:sldSz cx=\"9144000\" cy=\"6858000\"/>"));
    const QByteArray clear = partOf({}, shapes);
    QVERIFY(clear.contains("<p:sp>"));
    QVERIFY(partOf({QStringLiteral("--look=classic")}, shapes) != clear);
    QVERIFY(partOf({QStringLiteral("--head=left")}, shapes) != clear);
}

void TestCommandLine::shouldMakeAPdfOfThePage_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QSize>("millimetres");
    QTest::newRow("A4") << QStringLiteral("A4") << QSize(297, 210);
    QTest::newRow("A3") << QStringLiteral("A3") << QSize(420, 297);
    QTest::newRow("upright") << QStringLiteral("210x297mm") << QSize(210, 297);
}

/** With the drawing as large as it fits within margins on which nothing is drawn. */
void TestCommandLine::shouldMakeAPdfOfThePage()
{
    QFETCH(QString, page);
    QFETCH(QSize, millimetres);
    const QString renderer = QStandardPaths::findExecutable(QStringLiteral("pdftoppm"));
    if (renderer.isEmpty())
        QSKIP("pdftoppm is not installed");
    const QString target = path(QStringLiteral("page.pdf"));
    const Outcome outcome =
        run({QStringLiteral("--page"), page, QStringLiteral("--export"), target, document()},
            environment());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);

    // A pixel a millimetre.
    QCOMPARE(QProcess::execute(renderer, {QStringLiteral("-r"), QStringLiteral("25.4"),
                                          QStringLiteral("-png"), QStringLiteral("-singlefile"),
                                          target, path(QStringLiteral("page"))}),
             0);
    const QImage image(path(QStringLiteral("page.png")));
    QVERIFY(qAbs(image.width() - millimetres.width()) <= 1);
    QVERIFY(qAbs(image.height() - millimetres.height()) <= 1);
    const QRect drawn = TestSupport::inkedArea(image);
    // 10 mm less half of the outline, which is thick where so little is drawn so large.
    const QRect within = image.rect().adjusted(8, 8, -8, -8);
    QVERIFY(!drawn.isEmpty());
    QVERIFY2(within.contains(drawn), "something is drawn in the margin");
    QVERIFY(drawn.width() >= within.width() - 8 || drawn.height() >= within.height() - 8);
}

/** The sample @p name as an SVG that is drawn with @p options, nothing if that failed. */
QByteArray TestCommandLine::drawnSample(const QString &name, const QStringList &options)
{
    const QString target = path(QStringLiteral("drawn.svg"));
    QFile::remove(target);
    const QString sample = TestSupport::sourceFile(QStringLiteral("samples/") + name);
    const QStringList arguments{QStringLiteral("--export"), target, sample};
    return run(options + arguments, environment()).code == 0 ? contentOf(target) : QByteArray();
}

/** The drawing of a sheet is one of a picture that has the proportions of its inner part. */
void TestCommandLine::shouldArrangeForWhatTheMarginsLeave()
{
    const auto box = [this](const char *page) {
        const QString sample = QStringLiteral("solder-joint-voids.fishbone.json");
        const QString svg = QString::fromUtf8(
            drawnSample(sample, {QStringLiteral("--page"), QString::fromLatin1(page)}));
        return svg.section(QLatin1String("viewBox=\""), 1).section(QLatin1Char('"'), 0, 0);
    };
    const QString ofSheet = box("A4");
    QVERIFY(!ofSheet.isEmpty());
    QCOMPARE(ofSheet, box("2770x1900px"));
    QVERIFY(ofSheet != box("2970x2100px"));
}

void TestCommandLine::shouldExplainTheIconsUnlessAskedNotTo()
{
    const QString sample = QStringLiteral("checkout-outage.fishbone.json");
    const QByteArray with = drawnSample(sample, {QStringLiteral("--legend")});
    const QByteArray without = drawnSample(sample, {QStringLiteral("--no-legend")});
    QVERIFY(with.contains(">waiting for approval</text>"));
    QVERIFY(without.contains("</text>"));
    QVERIFY(!without.contains(">waiting for approval</text>"));
    QCOMPARE(drawnSample(sample, {}), with);
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
    const Outcome outcome =
        run({document(), QStringLiteral("--expand=none"), QStringLiteral("--export"), picture()},
            environment());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);
    QVERIFY(!QImage(picture()).isNull());
}

void TestCommandLine::shouldExportWhatItFetches()
{
    const QImage expected = exported({});
    QVERIFY(QFile::remove(picture()));
    const Server server("HTTP/1.0 200 OK\r\nContent-Type: application/json\r\n\r\n" + diagram());
    QVERIFY(server.listens());

    const Outcome outcome =
        runBesideServer({QStringLiteral("--export"), picture(), server.url()}, environment());
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);
    QCOMPARE(QImage(picture()), expected);
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
    QStringList names{QStringLiteral("--export"),  QStringLiteral("--language"),
                      QStringLiteral("--help"),    QStringLiteral("--version"),
                      QStringLiteral("  convert"), QStringLiteral("  info"),
                      QStringLiteral("  report")};
    const QList<QCommandLineOption> options = CommandOptions::forPictures();
    for (const QCommandLineOption &option : options)
        names += QStringLiteral("  --") + option.names().constFirst();
    QVERIFY(names.size() >= 17);
    for (const QString &name : qAsConst(names))
        QVERIFY2(outcome.out.contains(name), qPrintable(name));
    const QRegularExpression version(QStringLiteral("^fishbone [0-9]+\\.[0-9]+\\.[0-9]+\n$"));
    QVERIFY(version.match(run({QStringLiteral("--version")}, environment()).out).hasMatch());
}

FISHBONE_GUILESS_TEST(TestCommandLine)
#include "tst_commandline.moc"
