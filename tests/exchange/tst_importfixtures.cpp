// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/exchange/importfixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/exchangereport.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/model/jsonnodes.h>

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <QtTest>

using namespace ExchangeFixture;
using namespace ImportFixture;

namespace {

QString inOneLine(QString text)
{
    return text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
}

/** The value of an attribute as the expectations have it: dates can be read. */
QString valueOf(const SubjectAttributes::Attribute &attribute, const TreeItem &subject)
{
    const QString text = attribute.text(subject);
    const bool isDate =
        attribute.key == JsonNodes::createDateKey || attribute.key == JsonNodes::planEndDateKey;
    if (!isDate || text.isEmpty())
        return inOneLine(text);
    return QDateTime::fromMSecsSinceEpoch(text.toLongLong(), Qt::UTC).toString(Qt::ISODateWithMs);
}

/** The fields of a subject that are set, a line each, in the order of their keys. */
QStringList fieldsOf(const TreeItem &subject, const QString &indentation)
{
    QStringList fields;
    for (const SubjectAttributes::Attribute &attribute : SubjectAttributes::all()) {
        const QString value = valueOf(attribute, subject);
        const bool isApart =
            attribute.key == JsonNodes::uuidKey || attribute.key == JsonNodes::detailKey;
        if (!isApart && !value.isEmpty())
            fields.append(indentation + attribute.key + QLatin1String(": ") + value);
    }
    fields.sort();
    if (!subject.detail().isEmpty()) {
        const QStringList lines = subject.detail().split(QLatin1Char('\n'));
        for (const QString &line : lines)
            fields.append(indentation + QLatin1String("| ") + line);
    }
    return fields;
}

void describe(const TreeItem &subject, int level, QStringList &lines)
{
    const QString indentation(2 * level, QLatin1Char(' '));
    lines.append(indentation + QLatin1String("- ") + inOneLine(subject.title()));
    lines += fieldsOf(subject, indentation + QLatin1String("  "));
    for (const TreeItem *child : subject.childItems())
        describe(*child, level + 1, lines);
}

/** An expectation with the fields of each subject in the order of their keys. */
QStringList sortedFields(const QStringList &lines)
{
    QStringList sorted;
    QStringList fields;
    const auto flush = [&] {
        fields.sort();
        sorted += fields;
        fields.clear();
    };
    for (const QString &line : lines) {
        const QString text = line.trimmed();
        if (text.startsWith(QLatin1String("- ")) || text == QLatin1String("-") ||
            text.startsWith(QLatin1Char('|'))) {
            flush();
            sorted.append(line);
        } else {
            fields.append(line);
        }
    }
    flush();
    return sorted;
}

QString joined(QStringList lines)
{
    for (QString &line : lines) {
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

/**
 * Files in the manner of the programs that write each format, with what has to be read from them.
 */
class TestImportFixtures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldHaveTenFilesOfEachForeignFormat();
    void shouldHaveTenFilesOfEachProgram_data();
    void shouldHaveTenFilesOfEachProgram();
    void shouldSayWhereEachProgramIsDocumented_data() { shouldHaveTenFilesOfEachProgram_data(); }
    void shouldSayWhereEachProgramIsDocumented();
    void shouldDocumentWhatBecomesOfEachFormat_data();
    void shouldDocumentWhatBecomesOfEachFormat();
    void shouldExpectSomethingOfEachFile();
    void shouldReadWhatProgramsWrite_data();
    void shouldReadWhatProgramsWrite();
    void shouldKeepWhatWasReadInTheDiagramFormat_data() { shouldReadWhatProgramsWrite_data(); }
    void shouldKeepWhatWasReadInTheDiagramFormat();
};

void TestImportFixtures::initTestCase()
{
    qputenv("TZ", "UTC"); // a date without a zone is local time
}

void TestImportFixtures::shouldHaveTenFilesOfEachForeignFormat()
{
    const QList<Format> formats = DiagramExchange::formats();
    for (const Format format : formats) {
        if (format != Format::Json && DiagramExchange::canRead(format))
            QVERIFY2(fixturesOf(format).size() >= 10, qPrintable(DiagramExchange::id(format)));
    }
}

/** The programs of which files come most; the names of their files begin with theirs. */
void TestImportFixtures::shouldHaveTenFilesOfEachProgram_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QString>("program");
    const std::pair<Format, const char *> programs[] = {
        {Format::Csv, "asana excel github gitlab jira linear pivotal redmine trello"},
        {Format::FreeMind, "freemind freeplane"},
        {Format::Markdown, "github gitlab notion obsidian"},
        {Format::Opml, "checkvist dynalist feedly logseq mindjet omnioutliner scrivener workflowy"},
        {Format::Xmind, "xmind-8 zen"},
        {Format::Xlsx, "excel google-sheets"},
    };
    for (const auto &[format, names] : programs) {
        const QStringList list = QString::fromLatin1(names).split(QLatin1Char(' '));
        for (const QString &program : list)
            QTest::newRow(qPrintable(DiagramExchange::id(format) + QLatin1Char(' ') + program))
                << format << program;
    }
}

void TestImportFixtures::shouldHaveTenFilesOfEachProgram()
{
    QFETCH(Format, format);
    QFETCH(QString, program);
    const QStringList files = fixturesOf(format);
    const auto count = std::count_if(files.cbegin(), files.cend(), [&](const QString &name) {
        return name.startsWith(program + QLatin1Char('-')) ||
               name.startsWith(program + QLatin1Char('.'));
    });
    QVERIFY2(count >= 10, qPrintable(QString::number(count)));
}

/** What the expectations rest on: a row for each program, with what was found or that nothing was.
 */
void TestImportFixtures::shouldSayWhereEachProgramIsDocumented()
{
    QFETCH(Format, format);
    QFETCH(QString, program);
    const QString table = QString::fromUtf8(
        bytesOf(TestSupport::sourceFile(QStringLiteral("tests/exchange/documentation.md"))));
    const QStringList rows =
        table.split(QLatin1Char('\n'))
            .filter(QStringLiteral("| %1 | %2 | ").arg(DiagramExchange::id(format), program));
    QCOMPARE(rows.size(), 1);
    QVERIFY2(!rows.constFirst().section(QLatin1Char('|'), 3, 3).trimmed().isEmpty(),
             qPrintable(program));
}

void TestImportFixtures::shouldDocumentWhatBecomesOfEachFormat_data()
{
    QTest::addColumn<Format>("format");
    const QList<Format> formats = DiagramExchange::formats();
    for (const Format format : formats) {
        if (format != Format::Json && DiagramExchange::canRead(format))
            QTest::newRow(qPrintable(DiagramExchange::id(format))) << format;
    }
}

/** The table says what goes to the details and what is left out where files have such, only there.
 */
void TestImportFixtures::shouldDocumentWhatBecomesOfEachFormat()
{
    QFETCH(Format, format);
    const QString documentation =
        QString::fromUtf8(bytesOf(TestSupport::sourceFile(QStringLiteral("docs/formats.md"))));
    const QString section = documentation.section(QStringLiteral("## What other programs write"), 1)
                                .section(QStringLiteral("\n## "), 0, 0);
    const QRegularExpression start(
        QStringLiteral("^\\| (\\w+, )*%1(, \\w+)* \\|").arg(DiagramExchange::id(format)));
    const QStringList rows = section.split(QLatin1Char('\n')).filter(start);
    QCOMPARE(rows.size(), 1);
    const QStringList cells = rows.constFirst().split(QLatin1Char('|'));
    QCOMPARE(cells.size(), 6);

    QString said;
    const QStringList names = fixturesOf(format);
    for (const QString &name : names) {
        QByteArray bytes = bytesOf(folderOf(format).filePath(name));
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        ExchangeReport report;
        DiagramExchange::read(buffer, format, nullptr, &report);
        said += report.lines().join(QLatin1Char('\n'));
    }
    QVERIFY(!cells.at(2).trimmed().isEmpty());
    QCOMPARE(!cells.at(3).trimmed().isEmpty(),
             said.contains(QLatin1String("put into the details")));
    QCOMPARE(!cells.at(4).trimmed().isEmpty(), said.contains(QLatin1String("left out")));
}

void TestImportFixtures::shouldExpectSomethingOfEachFile()
{
    const QList<Format> formats = DiagramExchange::formats();
    for (const Format format : formats) {
        const QDir folder = folderOf(format);
        const QStringList fixtures = fixturesOf(format);
        for (const QString &name : fixtures)
            QVERIFY2(folder.exists(name + ending), qPrintable(name));
        const QStringList expectations = folder.entryList({QLatin1Char('*') + ending});
        QCOMPARE(expectations.size(), fixtures.size());
    }
}

void TestImportFixtures::shouldReadWhatProgramsWrite_data()
{
    QTest::addColumn<Format>("format");
    QTest::addColumn<QString>("path");
    const QList<Format> formats = DiagramExchange::formats();
    for (const Format format : formats) {
        const QStringList fixtures = fixturesOf(format);
        for (const QString &name : fixtures)
            QTest::newRow(qPrintable(DiagramExchange::id(format) + QLatin1Char('/') + name))
                << format << folderOf(format).filePath(name);
    }
}

void TestImportFixtures::shouldReadWhatProgramsWrite()
{
    QFETCH(Format, format);
    QFETCH(QString, path);
    QByteArray bytes = bytesOf(path);
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QString error;
    ExchangeReport report;
    const auto head = DiagramExchange::read(buffer, format, &error, &report);

    QStringList expected =
        QString::fromUtf8(bytesOf(path + ending)).trimmed().split(QLatin1Char('\n'));
    QStringList expectedReport;
    while (!expected.isEmpty() && expected.constLast().startsWith(QLatin1String("report: ")))
        expectedReport.prepend(expected.takeLast().mid(8));
    QStringList lines;
    if (head)
        describe(*head, 0, lines);
    else
        lines.append(QLatin1String("error: ") + error);
    QCOMPARE(joined(lines), joined(sortedFields(expected)));

    // All that is lost or moved has to be expected; what else is expected has to be there.
    const QStringList reported = report.lines();
    for (const QString &line : qAsConst(expectedReport))
        QVERIFY2(reported.contains(line),
                 qPrintable(line + QLatin1String("\nnot in\n") + reported.join(QLatin1Char('\n'))));
    for (const QString &line : reported) {
        const bool hasToBe = line.startsWith(QLatin1String("left out")) ||
                             line.startsWith(QLatin1String("put into"));
        QVERIFY2(!hasToBe || expectedReport.contains(line), qPrintable(line));
    }
}

void TestImportFixtures::shouldKeepWhatWasReadInTheDiagramFormat()
{
    QFETCH(Format, format);
    QFETCH(QString, path);
    const Imported original = imported(bytesOf(path), format);
    if (!original.head)
        return; // it is one that has to be refused
    const Imported again = carriedThrough(*original.head, Format::Json);
    QStringList before;
    QStringList after;
    describe(*original.head, 0, before);
    describe(*again.head, 0, after);
    QCOMPARE(joined(after), joined(before));
}

FISHBONE_GUILESS_TEST(TestImportFixtures)
#include "tst_importfixtures.moc"
