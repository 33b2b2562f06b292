// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/linksafety.h>
#include <fishbone/exchange/slideexport.h>
#include <fishbone/exchange/ziparchive.h>

#include <QBuffer>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using TestSupport::EditorFixture;

/** Which links files lead to. */
class TestLinkSafety : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellWhereALinkLeads_data();
    void shouldTellWhereALinkLeads();
    void shouldLeadNowhereHarmfulInAnyFile_data();
    void shouldLeadNowhereHarmfulInAnyFile();
    void shouldLeadToTheWebFromEveryFile();

private:
    /** All links of the files that are made of a diagram whose one cause has the link @p link. */
    static QStringList linksOfFiles(const QString &link);
};

void TestLinkSafety::shouldTellWhereALinkLeads_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("webOrMail");
    QTest::addColumn<bool>("runsCode");
    const auto row = [](const char *link, const char *webOrMail, bool runsCode) {
        QTest::newRow(link) << QString::fromUtf8(link) << QString::fromUtf8(webOrMail) << runsCode;
    };
    row("https://example.org/a?b=c&d#e", "https://example.org/a?b=c&d#e", false);
    row(" HTTP://example.org ", "http://example.org", false);
    row("https://example.org/ü", "https://example.org/%C3%BC", false);
    row("mailto:a@example.org", "mailto:a@example.org", false);
    row("https:", "", false);
    row("ftp://example.org/a", "", false);
    row("file:///etc/passwd", "", false);
    row("report.pdf", "", false);
    row("//example.org/a", "", false);
    row("javascript:alert(1)", "", true);
    row(" JavaScript:alert(1)", "", true);
    row("java\nscript:alert(1)", "", true);
    row("\x01javascript:alert(1)", "", true);
    row("vbscript:msgbox(1)", "", true);
    row("data:text/html,<script>alert(1)</script>", "", true);
    row("javascript", "", false); // a file of that name
    row("", "", false);
}

void TestLinkSafety::shouldTellWhereALinkLeads()
{
    QFETCH(QString, link);
    QFETCH(QString, webOrMail);
    QFETCH(bool, runsCode);
    QCOMPARE(LinkSafety::webOrMail(link), webOrMail);
    QCOMPARE(LinkSafety::runsCode(link), runsCode);
}

QStringList TestLinkSafety::linksOfFiles(const QString &link)
{
    EditorFixture fish(QStringLiteral("Effect[Man[Training]]"));
    TreeItem *const head = fish.subject(QStringLiteral("Effect"));
    fish.subject(QStringLiteral("Training"))->setUrl(link);
    fish.editor.setLook(DiagramLook::Clear);
    fish.editor.updateFish(true);
    fish.editor.expandAll();
    const DiagramPicture picture(head);
    const QTemporaryDir folder;
    const QString page = folder.filePath(QStringLiteral("a.html"));
    QFile file(page);
    QByteArray all;
    if (!picture.render(PictureExport::Format::Svg, {}, all) || !picture.write(page) ||
        !file.open(QIODevice::ReadOnly))
        return {QStringLiteral("cannot be written")};
    QBuffer drawIo;
    drawIo.open(QIODevice::WriteOnly);
    if (!DiagramExchange::write(drawIo, *head, DiagramExchange::Format::DrawIo))
        return {QStringLiteral("cannot be written")};
    all += file.readAll() + drawIo.data();
    ImportedTree tree;
    ZipReader archive(SlideExport::presentation(*fish.editor.scene(), *head), tree);
    all += archive.file(QStringLiteral("ppt/slides/_rels/slide1.xml.rels")).value_or("");
    // As SVG and HTML, the data of the page, slides and draw.io have them.
    static const QRegularExpression links(
        QStringLiteral("(?:href=\"|\"link\":\"|hyperlink\" Target=\"| link=\")([^#\"][^\"]*)\""));
    QStringList found;
    auto matches = links.globalMatch(QString::fromUtf8(all));
    while (matches.hasNext())
        found << matches.next().captured(1);
    return found;
}

void TestLinkSafety::shouldLeadNowhereHarmfulInAnyFile_data()
{
    QTest::addColumn<QString>("link");
    for (const char *link : {"javascript:alert(1)", " JavaScript:alert(1)", "java\tscript:alert(1)",
                             "vbscript:msgbox(1)", "data:text/html,<script>alert(1)</script>"})
        QTest::newRow(link) << QString::fromLatin1(link);
}

void TestLinkSafety::shouldLeadNowhereHarmfulInAnyFile()
{
    QFETCH(QString, link);
    QCOMPARE(linksOfFiles(link), QStringList());
}

void TestLinkSafety::shouldLeadToTheWebFromEveryFile()
{
    const QString link = QStringLiteral("https://example.org/a");
    // In the SVG, the page and its data, the slide and draw.io.
    QCOMPARE(linksOfFiles(link), QStringList({link, link, link, link, link}));
}

FISHBONE_TEST(TestLinkSafety)
#include "tst_linksafety.moc"
