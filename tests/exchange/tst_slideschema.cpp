// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/slidefixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/sourcefolder.h>

#include <fishbone/exchange/slideexport.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/subjectmarks.h>

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using SlideFixture::partOf;
using SlideFixture::slidePart;

namespace {

/** What the schema of slides says against @p xml, empty for nothing. */
QByteArray complaintsAbout(const QByteArray &xml)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("part.xml")));
    if (!file.open(QIODevice::WriteOnly) || file.write(xml) != xml.size())
        return "it cannot be written";
    file.close();
    QProcess lint;
    lint.setProcessChannelMode(QProcess::MergedChannels);
    lint.start(QStringLiteral("xmllint"),
               {QStringLiteral("--noout"), QStringLiteral("--relaxng"),
                TestSupport::sourceFile(QStringLiteral("tests/exchange/pptx/slide.rng")),
                file.fileName()});
    if (!lint.waitForFinished())
        return "xmllint does not end";
    const QByteArray said = lint.readAll();
    return lint.exitCode() == 0 ? QByteArray() : said + ' ';
}

/** The numbers of the shapes of a slide that stand more than once. */
QStringList repeatedIds(const QByteArray &slide)
{
    static const QRegularExpression shape(QStringLiteral("<p:cNvPr id=\"(\\d+)\""));
    QSet<QString> known;
    QStringList repeated;
    for (auto matches = shape.globalMatch(QString::fromUtf8(slide)); matches.hasNext();) {
        const QString id = matches.next().captured(1);
        if (known.contains(id))
            repeated.append(id);
        known.insert(id);
    }
    return repeated;
}

} // namespace

/** That slides are what their schema asks for. */
class TestSlideSchema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepToTheSchema_data();
    void shouldKeepToTheSchema();
    void shouldHaveASchemaThatRefusesDamage_data();
    void shouldHaveASchemaThatRefusesDamage();
};

void TestSlideSchema::shouldKeepToTheSchema_data()
{
    QTest::addColumn<int>("look");
    QTest::addColumn<int>("aspect");
    QTest::newRow("clear") << int(DiagramLook::Clear) << int(SlideExport::Aspect::Wide);
    QTest::newRow("classic") << int(DiagramLook::Classic) << int(SlideExport::Aspect::Wide);
    QTest::newRow("narrow") << int(DiagramLook::Clear) << int(SlideExport::Aspect::Narrow);
}

/**
 * Programs that open slides take an element in the wrong place, a value out of its range and a
 * number of a shape that stands twice for damage.
 */
void TestSlideSchema::shouldKeepToTheSchema()
{
    QFETCH(int, look);
    QFETCH(int, aspect);
    TestSupport::EditorFixture fish(
        QStringLiteral("Effect[Man[Twin,Tired[Shift]],Machine[Worn],Method]"));
    TreeItem *const twin = fish.subject(QStringLiteral("Twin"));
    twin->setUrl(QStringLiteral("https://example.org/?a=1&b=2"));
    twin->setStatus(tsRunning);
    twin->setProgress(40);
    SubjectMarks::setVerdict(*fish.subject(QStringLiteral("Worn")), Verdict::RootCause);
    SubjectMarks::setVerdict(*fish.subject(QStringLiteral("Shift")), Verdict::RuledOut);
    SubjectMarks::setVotes(*fish.subject(QStringLiteral("Tired")), 3);
    twin->setTitle(QStringLiteral("Two <lines>\nof \"text\" & more"));
    fish.subject(QStringLiteral("Method"))
        ->setTitle(QStringLiteral("\u0637\u0631\u064a\u0642\u0629"));
    DiagramLook::Options options;
    options.hasLegend = true;
    fish.editor.setLookOptions(options);
    fish.editor.setLook(DiagramLook::Kind(look));
    fish.editor.updateFish(true);
    fish.editor.expandAll();
    const QByteArray bytes = SlideExport::presentation(
        *fish.editor.scene(), *fish.subject(QStringLiteral("Effect")), SlideExport::Aspect(aspect));
    ImportedTree tree;
    ZipReader archive(bytes, tree);
    int checked = 0;
    for (const QString &name : archive.names()) {
        if (!name.startsWith(QLatin1String("ppt/")) || !name.endsWith(QLatin1String(".xml")))
            continue;
        QCOMPARE(name + QString::fromUtf8(complaintsAbout(partOf(bytes, name))), name);
        ++checked;
    }
    QCOMPARE(checked, 9);
    QCOMPARE(repeatedIds(partOf(bytes, slidePart)), QStringList());
}

void TestSlideSchema::shouldHaveASchemaThatRefusesDamage_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const std::pair<QByteArray, QByteArray> damages[] = {
        {"prst=\"line\"", "prst=\"lines\""},
        {"cap=\"rnd\"", "cap=\"round\""},
        {" sz=\"", " sz=\"-"},
        {"anchor=\"ctr\"", "anchor=\"middle\""},
        {"algn=\"ctr\"", "algn=\"center\""},
        {"flipV=\"1\"", "flipV=\"yes\""},
        {"txBox=\"1\"", "txBox=\"on\""},
        {"wrap=\"none\"", "wrap=\"no\""},
        {"val=\"tx1\"", "val=\"text1\""},
        {"<a:ext cx=\"", "<a:ext cx=\"-"},
        {"<a:ln w=\"", "<a:ln w=\"99999999"},
        {"<p:nvPr/>", ""},
        {"<a:bodyPr", "<a:lstStyle/><a:bodyPr"},
        {"<a:avLst/><a:gdLst/>", "<a:gdLst/><a:avLst/>"},
        {"<p:cNvPr id=\"3\"", "<p:cNvPr id=\"three\""},
    };
    for (const auto &[before, after] : damages)
        QTest::newRow(before.constData()) << before << after;
}

void TestSlideSchema::shouldHaveASchemaThatRefusesDamage()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QByteArray slide =
        partOf(SlideExport::presentation(*SlideFixture::scene(), *SlideFixture::tree()), slidePart);
    QCOMPARE(complaintsAbout(slide), QByteArray());
    QVERIFY(slide.contains(before));
    QVERIFY(!complaintsAbout(slide.replace(before, after)).isEmpty());
}

FISHBONE_TEST(TestSlideSchema)

#include "tst_slideschema.moc"
