// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearcontent.h>
#include <fishbone/exchange/svgpicture.h>
#include <fishbone/exchange/svgsymbol.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <tests/exchange/describedfish.h>
#include <tests/program/testprogram.h>
#include <tests/support/clearpictures.h>
#include <tests/support/sourcefolder.h>

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

using namespace DescribedFish;

namespace {

ClearPictureContent sample(const QString &name)
{
    QFile file(TestSupport::sourceFile(QStringLiteral("samples/%1.fishbone.json").arg(name)));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    TreeItem root;
    FishModel().read(QJsonDocument::fromJson(file.readAll()).object(), &root, 0);
    return root.childCount() ? ClearContent::of(root.childAtIndex(0)) : ClearPictureContent();
}

/** All texts, a line each, in order. */
QStringList textsOf(const QByteArray &svg)
{
    QStringList texts;
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("text"))
            texts << xml.readElementText();
    }
    return xml.hasError() ? QStringList{xml.errorString()} : texts;
}

/** The names of all elements and attributes. */
QSet<QString> namesIn(const QByteArray &svg)
{
    QSet<QString> names;
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        names << xml.name().toString();
        const QXmlStreamAttributes attributes = xml.attributes();
        for (const QXmlStreamAttribute &attribute : attributes)
            names << attribute.qualifiedName().toString();
    }
    return names;
}

} // namespace

class TestSvgPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldHoldAllTextsOfASample_data();
    void shouldHoldAllTextsOfASample();
    void shouldTakeFewBytesABone();
    void shouldKeepHostileTitlesText_data();
    void shouldKeepHostileTitlesText();
    void shouldLinkToTheWebAndToMailOnly_data();
    void shouldLinkToTheWebAndToMailOnly();
    void shouldMakeIdsHarmlessAndUnique();
    void shouldTakeShapesOfIconsOnly();
    void shouldSayWhatItIs();
    void shouldNameItsCategoriesToWhoCannotSeeIt();
    void shouldLookAlikeInOtherRenderers_data();
    void shouldLookAlikeInOtherRenderers();
};

void TestSvgPicture::shouldHoldAllTextsOfASample_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"checkout-outage", "delivery-delay-zh", "late-bus-departures",
                             "medication-delay", "solder-joint-voids"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestSvgPicture::shouldHoldAllTextsOfASample()
{
    QFETCH(QString, name);
    ClearOptions options;
    options.wrap.limit = 145;
    const Made made(sample(name), options);
    QVERIFY(made.tree.size() > 50);

    const QStringList texts = textsOf(made.svg());

    QStringList expected;
    for (int i = 0; i < made.layout.size(); ++i) {
        for (const ClearText::Line &line : made.layout.bone(i).text->lines())
            expected << line.text;
    }
    QCOMPARE(texts, expected);
    const QByteArray folder = qgetenv("FISHBONE_PICTURES");
    if (!folder.isEmpty()) {
        QFile file(QString::fromLocal8Bit(folder) + u'/' + name + QStringLiteral(".svg"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(made.svg()) > 0);
    }
}

void TestSvgPicture::shouldTakeFewBytesABone()
{
    std::vector<ClearSubject> subjects(1);
    subjects[0].title = QStringLiteral("Effect");
    int texts = 0;
    for (int i = 1; i < 10000; ++i) {
        ClearSubject subject;
        subject.parent = i < 7 ? 0 : i < 100 ? 1 + i % 6 : (i - 100) / 100 + 7;
        subject.title = QStringLiteral("Cause number %1").arg(i);
        subject.hasStatus = true;
        subjects.push_back(subject);
        texts += int(subject.title.size());
    }
    // Into document order.
    std::vector<ClearSubject> ordered;
    std::vector<std::vector<int>> children(subjects.size());
    for (std::size_t i = 1; i < subjects.size(); ++i)
        children[std::size_t(subjects[i].parent)].push_back(int(i));
    std::vector<std::pair<int, int>> open{{0, -1}};
    while (!open.empty()) {
        const auto [index, parent] = open.back();
        open.pop_back();
        const int own = int(ordered.size());
        ordered.push_back(subjects[std::size_t(index)]);
        ordered.back().parent = parent;
        for (const int child : children[std::size_t(index)])
            open.emplace_back(child, own);
    }
    const Made made(ClearPictures::contentOf(ordered));

    const QByteArray svg = made.svg();

    const qreal each = qreal(svg.size() - texts) / 10000;
    qInfo("%.0f bytes a bone", each);
    QVERIFY2(each <= 500, qPrintable(QString::number(each)));
    QCOMPARE(textsOf(svg).size(), 10000);
}

void TestSvgPicture::shouldKeepHostileTitlesText_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("script") << QStringLiteral("<script>alert(1)</script>");
    QTest::newRow("end tag") << QStringLiteral("</text></svg><script>");
    QTest::newRow("attribute") << QStringLiteral("\" onload=\"alert(1)");
    QTest::newRow("apostrophe") << QStringLiteral("' onload='alert(1)");
    QTest::newRow("entity") << QStringLiteral("&lt;script&gt;&amp;&#x3c;&unknown;");
    QTest::newRow("section") << QStringLiteral("]]><![CDATA[<script>]]>");
    QTest::newRow("comment") << QStringLiteral("--><!-- <!DOCTYPE x>");
}

void TestSvgPicture::shouldKeepHostileTitlesText()
{
    QFETCH(QString, title);
    const Made plain(contentWith({QStringLiteral("plain")}));
    ClearPictureContent content = contentWith({title});
    content.meanings[2].id = title;
    const Made made(content);
    SvgPictureOptions options;
    options.title = options.description = title;

    const QByteArray svg = made.svg(options);

    QCOMPARE(textsOf(svg).join(u' ').simplified(),
             QStringLiteral("Effect Category %1").arg(title).simplified());
    QSet<QString> names = namesIn(svg);
    names.remove(QStringLiteral("title"));
    QCOMPARE(names, namesIn(plain.svg()));
}

void TestSvgPicture::shouldLinkToTheWebAndToMailOnly_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<bool>("isKept");
    QTest::newRow("web") << QStringLiteral("https://example.org/a?b=1&c=\"2\"") << true;
    QTest::newRow("capitals") << QStringLiteral("HTTP://EXAMPLE.ORG") << true;
    QTest::newRow("mail") << QStringLiteral("mailto:a@example.org") << true;
    QTest::newRow("script") << QStringLiteral("javascript:alert(1)") << false;
    QTest::newRow("script in capitals") << QStringLiteral("JavaScript:alert(1)") << false;
    QTest::newRow("script with a tab") << QStringLiteral("java\tscript:alert(1)") << false;
    QTest::newRow("script after a space") << QStringLiteral("  javascript:alert(1)") << false;
    QTest::newRow("control") << QStringLiteral("\u0001javascript:alert(1)") << false;
    QTest::newRow("data") << QStringLiteral("data:text/html,<script>alert(1)</script>") << false;
    QTest::newRow("vbscript") << QStringLiteral("vbscript:msgbox(1)") << false;
    QTest::newRow("file") << QStringLiteral("file:///etc/passwd") << false;
    QTest::newRow("relative") << QStringLiteral("//example.org/x") << false;
    QTest::newRow("no host") << QStringLiteral("http:alert(1)") << false;
}

void TestSvgPicture::shouldLinkToTheWebAndToMailOnly()
{
    QFETCH(QString, link);
    QFETCH(bool, isKept);
    const Made made(contentWith({QStringLiteral("cause")}, link));

    QStringList links;
    QXmlStreamReader xml(made.svg());
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("a"))
            links << xml.attributes()
                         .value(QStringLiteral("http://www.w3.org/1999/xlink"),
                                QStringLiteral("href"))
                         .toString();
    }

    QVERIFY(!xml.hasError());
    QCOMPARE(links.size(), isKept ? 1 : 0);
    if (isKept) {
        const QString scheme = links.first().section(u':', 0, 0).toLower();
        QVERIFY(scheme == link.trimmed().section(u':', 0, 0).toLower());
    }
}

void TestSvgPicture::shouldMakeIdsHarmlessAndUnique()
{
    ClearPictureContent content =
        contentWith({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    content.meanings[2].id = content.meanings[3].id =
        QStringLiteral("{3345bcc3-9b9b-5742-a4d6-e7acaa5e965c}");
    content.meanings[4].id = QStringLiteral("\"/><script>");
    const Made made(content);

    QStringList ids;
    const QByteArray svg = made.svg();
    QXmlStreamReader xml(svg);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("g"))
            ids << xml.attributes().value(QStringLiteral("id")).toString();
    }
    ids.removeAll(QString()); // groups within an icon
    QCOMPARE(ids, (QStringList{QStringLiteral("n0"), QStringLiteral("n1"),
                               QStringLiteral("s3345bcc3-9b9b-5742-a4d6-e7acaa5e965c"),
                               QStringLiteral("n3"), QStringLiteral("sscript")}));
}

void TestSvgPicture::shouldTakeShapesOfIconsOnly()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("icon.svg"));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 8 8' onload='x()'>"
               "<script>alert(1)</script><image href='http://example.org/x.png'/>"
               "<circle id='i' cx='4' cy='4' r='3' fill='#123456' onclick='x()' style='a:b'/>"
               "<rect fill='url(http://example.org)' width='2' height='2'/></svg>");
    file.close();
    QCOMPARE(SvgSymbol(name).markup(),
             QByteArray(" viewBox=\"0 0 8 8\"><circle cx=\"4\" cy=\"4\" r=\"3\" fill=\"#123456\">"
                        "</circle><rect width=\"2\" height=\"2\"></rect>"));
    QVERIFY(SvgSymbol(QStringLiteral("/none")).markup().contains("circle"));
    for (const char *icon : {"cancel", "finish", "finish_delay", "postpone", "running_progress_40",
                             "waitting", "waitting_agree"}) {
        const QString own =
            QStringLiteral(":/fishboneDiagram/status/%1.svg").arg(QLatin1String(icon));
        QVERIFY(QFile::exists(own));
        QVERIFY2(!SvgSymbol(own).markup().contains("#757575") || QByteArray(icon) == "cancel",
                 icon);
    }
}

void TestSvgPicture::shouldSayWhatItIs()
{
    const Made made(contentWith({QStringLiteral("cause")}));
    SvgPictureOptions options;
    options.title = QStringLiteral("Effect");
    options.description = QStringLiteral("1 category, 1 cause");
    options.background = Qt::white;
    const QByteArray svg = made.svg(options);
    QVERIFY(svg.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg "));
    QVERIFY(svg.contains("<title>Effect</title>\n<desc>1 category, 1 cause</desc>"));
    QVERIFY(svg.contains("sans-serif"));
    QVERIFY(svg.contains("fill=\"#ffffff\""));
    QVERIFY(svg.endsWith("</svg>\n"));
}

void TestSvgPicture::shouldNameItsCategoriesToWhoCannotSeeIt()
{
    QVERIFY(Made(contentWith({QStringLiteral("cause")})).svg().contains("<desc>Category</desc>\n"));
    ClearPictureContent many = contentWith({QStringLiteral("cause")});
    for (int i = 0; i < 30; ++i) {
        many.subjects.push_back(many.subjects[1]);
        many.subjects.back().title = QStringLiteral("<%1>\n%2").arg(i).arg(i);
        many.meanings.push_back(many.meanings[1]);
        many.looks.push_back(many.looks[1]);
    }
    const QByteArray svg = Made(std::move(many)).svg();
    QVERIFY(svg.contains("<desc>Category; &lt;0&gt; 0; &lt;1&gt; 1; "));
    QVERIFY(svg.contains("&lt;18&gt; 18; \u2026</desc>\n"));
}

void TestSvgPicture::shouldLookAlikeInOtherRenderers_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("name");
    const QStringList rsvg{QStringLiteral("-o"), QStringLiteral("%out"), QStringLiteral("%in")};
    const QStringList chromium{
        QStringLiteral("--headless"),
        QStringLiteral("--no-sandbox"),
        QStringLiteral("--disable-gpu"),
        QStringLiteral("--hide-scrollbars"),
        QStringLiteral("--user-data-dir=%profile"),
        QStringLiteral("--window-size=%width,%height"),
        QStringLiteral("--screenshot=%out"),
        QStringLiteral("%in"),
    };
    for (const char *name : {"checkout-outage", "delivery-delay-zh"}) {
        QTest::addRow("librsvg, %s", name)
            << QStringLiteral("rsvg-convert") << rsvg << QString::fromLatin1(name);
        QTest::addRow("Chromium, %s", name)
            << QStringLiteral("chromium") << chromium << QString::fromLatin1(name);
    }
}

void TestSvgPicture::shouldLookAlikeInOtherRenderers()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    QFETCH(QString, name);
    const QString found = QStandardPaths::findExecutable(program);
    if (found.isEmpty())
        QSKIP("the renderer is not installed");
    ClearOptions options;
    options.wrap.limit = 145;
    options.hasLegend = true;
    const Made made(sample(name), options);
    const QTemporaryDir folder;
    const QString in = folder.filePath(QStringLiteral("in.svg"));
    const QString out = folder.filePath(QStringLiteral("out.png"));
    QFile file(in);
    QVERIFY(file.open(QIODevice::WriteOnly));
    SvgPictureOptions svgOptions;
    svgOptions.background = Qt::white;
    QVERIFY(SvgPicture::write(made.picture, svgOptions, file));
    file.close();
    const QImage expected = ClearPictures::paint(made.picture, 1);

    QProcess lint;
    lint.start(QStringLiteral("xmllint"), {QStringLiteral("--noout"), in});
    QVERIFY(lint.waitForFinished());
    QCOMPARE(lint.exitCode(), 0);
    arguments.replaceInStrings(QStringLiteral("%in"), in);
    arguments.replaceInStrings(QStringLiteral("%out"), out);
    arguments.replaceInStrings(QStringLiteral("%profile"), folder.path());
    arguments.replaceInStrings(QStringLiteral("%width"), QString::number(expected.width()));
    arguments.replaceInStrings(QStringLiteral("%height"), QString::number(expected.height()));
    QProcess renderer;
    renderer.start(found, arguments);
    QVERIFY(renderer.waitForFinished(120000));

    QImage shown(out);
    QVERIFY2(!shown.isNull(), renderer.readAllStandardError().constData());
    const QByteArray pictures = qgetenv("FISHBONE_PICTURES");
    if (!pictures.isEmpty())
        QVERIFY(shown.save(QString::fromLocal8Bit(pictures) + u'/' + program + u'-' + name +
                           QStringLiteral(".png")));
    QVERIFY(qAbs(shown.width() - expected.width()) <= 1);
    const qreal alike = ClearPictures::likeness(expected, shown);
    qInfo("%.4f alike", alike);
    QVERIFY2(alike > 0.98, qPrintable(QString::number(alike)));
}

FISHBONE_TEST(TestSvgPicture)
#include "tst_svgpicture.moc"
