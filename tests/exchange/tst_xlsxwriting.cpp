// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/ziparchive.h>
#include <fishbone/items/taskstatusinfo.h>

#include <QRegularExpression>
#include <QtTest>

using namespace ExchangeFixture;

namespace {

QString textOfPart(const QByteArray &workbook, const char *name)
{
    ImportedTree tree;
    ZipReader archive(workbook, tree);
    return QString::fromUtf8(archive.file(QLatin1String(name)).value_or(QByteArray()));
}

/** The cells of a sheet, a line each row. */
QStringList rowsOf(const QString &sheet)
{
    static const QRegularExpression row(QStringLiteral("<row[^>]*>(.*?)</row>"),
                                        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression cell(QStringLiteral("<(?:t|v)(?:\\s[^>]*)?>([^<]*)<"));
    QStringList rows;
    for (auto matches = row.globalMatch(sheet); matches.hasNext();) {
        QStringList cells;
        const QString content = matches.next().captured(1);
        for (auto texts = cell.globalMatch(content); texts.hasNext();)
            cells.append(texts.next().captured(1));
        rows.append(cells.join(QLatin1Char('|')));
    }
    return rows;
}

} // namespace

/** Workbooks that are written. */
class TestXlsxWriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldHaveTheOutlineAndTheActions();
    void shouldGroupTheOutlineByLevels();
    void shouldListWhatIsToBeDone();
    void shouldWriteNoFormula();
};

void TestXlsxWriting::shouldHaveTheOutlineAndTheActions()
{
    const QString workbook =
        textOfPart(exported(*treeFrom("a[b]"), Format::Xlsx), "xl/workbook.xml");
    static const QRegularExpression sheet(QStringLiteral("<sheet name=\"([^\"]*)\""));
    QStringList names;
    for (auto matches = sheet.globalMatch(workbook); matches.hasNext();)
        names.append(matches.next().captured(1));
    QCOMPARE(names, QStringList({QStringLiteral("Outline"), QStringLiteral("Actions")}));
}

void TestXlsxWriting::shouldGroupTheOutlineByLevels()
{
    const QString sheet =
        textOfPart(exported(*treeFrom("a[b[c],d]"), Format::Xlsx), "xl/worksheets/sheet1.xml");
    static const QRegularExpression row(
        QStringLiteral("<row r=\"\\d+\"(?: outlineLevel=\"(\\d+)\")?[^>]*>"));
    QStringList levels;
    for (auto matches = row.globalMatch(sheet); matches.hasNext();)
        levels.append(matches.next().captured(1));
    // The headings and the head belong to no group.
    QCOMPARE(levels, QStringList({QString(), QString(), QStringLiteral("1"), QStringLiteral("2"),
                                  QStringLiteral("1")}));
    QCOMPARE(rowsOf(sheet).size(), 5);
}

void TestXlsxWriting::shouldListWhatIsToBeDone()
{
    auto head = treeFrom("Late[Carrier[No vehicle,Strike],Stock]");
    TreeItem *const carrier = head->childAtIndex(0);
    carrier->childAtIndex(0)->setStatus(tsRunning);
    carrier->childAtIndex(0)->setProgress(40);
    carrier->childAtIndex(1)->setManagerName(QStringLiteral("Li"));
    head->childAtIndex(1)->setPlanEndDate(
        QDateTime(QDate(2024, 1, 31), QTime(12, 0)).toMSecsSinceEpoch());
    const QStringList rows =
        rowsOf(textOfPart(exported(*head, Format::Xlsx), "xl/worksheets/sheet2.xml"));
    QCOMPARE(rows.size(), 4); // the headings, and neither the head nor the category
    QVERIFY2(rows.at(1).startsWith(QLatin1String("No vehicle|Carrier|")), qPrintable(rows.at(1)));
    QVERIFY2(rows.at(1).contains(QLatin1String("|0.4")), qPrintable(rows.at(1)));
    QVERIFY2(rows.at(2).startsWith(QLatin1String("Strike|Carrier|")), qPrintable(rows.at(2)));
    QVERIFY2(rows.at(2).contains(QLatin1String("|Li")), qPrintable(rows.at(2)));
    // Spreadsheets count days.
    QVERIFY2(rows.at(3).startsWith(QLatin1String("Stock|Late|")), qPrintable(rows.at(3)));
    QVERIFY2(rows.at(3).contains(QLatin1String("|45322")), qPrintable(rows.at(3)));
}

void TestXlsxWriting::shouldWriteNoFormula()
{
    const QStringList texts{QStringLiteral("=HYPERLINK(\"http://x\")"), QStringLiteral("+1"),
                            QStringLiteral("-1"), QStringLiteral("@x"), QStringLiteral("'=1")};
    for (const QString &text : texts) {
        auto head = treeFrom("a");
        head->setTitle(text);
        head->setManagerName(text);
        const QByteArray workbook = exported(*head, Format::Xlsx);
        for (const char *sheet : {"xl/worksheets/sheet1.xml", "xl/worksheets/sheet2.xml"}) {
            const QString xml = textOfPart(workbook, sheet);
            QVERIFY2(!xml.contains(QLatin1String("<f")), qPrintable(xml));
            QVERIFY2(xml.contains(QLatin1String("t=\"inlineStr\"")), qPrintable(xml));
        }
        const Imported result = imported(workbook, Format::Xlsx);
        QCOMPARE(result.text(), text);
        QCOMPARE(result.head->managerName(), text);
    }
}

FISHBONE_GUILESS_TEST(TestXlsxWriting)

#include "tst_xlsxwriting.moc"
