// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/xlsxwriter.h>

#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/owntable.h>
#include <fishbone/exchange/taskstatuses.h>
#include <fishbone/exchange/xlsxtext.h>
#include <fishbone/exchange/ziparchive.h>

#include <QDateTime>
#include <QXmlStreamWriter>

#include <cmath>

namespace {

/** The forms of cells, in the order of the styles. */
enum Form { Plain, Heading, Date, Percent };

const QStringList overviewHeadings{
    QStringLiteral("Action"),   QStringLiteral("Below"),   QStringLiteral("State"),
    QStringLiteral("Progress"), QStringLiteral("Rank"),    QStringLiteral("Who"),
    QStringLiteral("By when"),  QStringLiteral("Address"),
};

const char *const statusNames[] = {"Unknown",   "Cancelled", "Finished", "Finished late",
                                   "Postponed", "Running",   "Waiting",  "Waiting for approval"};

QByteArray workbookTypes()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
           "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
           "<Default Extension=\"rels\" "
           "ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
           "<Default Extension=\"xml\" ContentType=\"application/xml\"/>"
           "<Override PartName=\"/xl/workbook.xml\" "
           "ContentType=\"application/"
           "vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml\"/>"
           "<Override PartName=\"/xl/worksheets/sheet1.xml\" "
           "ContentType=\"application/"
           "vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml\"/>"
           "<Override PartName=\"/xl/worksheets/sheet2.xml\" "
           "ContentType=\"application/"
           "vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml\"/>"
           "<Override PartName=\"/xl/styles.xml\" "
           "ContentType=\"application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml\"/"
           ">"
           "</Types>";
}

QByteArray packageParts()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
           "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
           "<Relationship Id=\"rId1\" "
           "Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/"
           "officeDocument\" Target=\"xl/workbook.xml\"/></Relationships>";
}

QByteArray workbook()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
           "<workbook xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\" "
           "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\">"
           "<sheets><sheet name=\"Outline\" sheetId=\"1\" r:id=\"rId1\"/>"
           "<sheet name=\"Actions\" sheetId=\"2\" r:id=\"rId2\"/></sheets></workbook>";
}

QByteArray workbookRelations()
{
    const QByteArray type = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
           "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">"
           "<Relationship Id=\"rId1\" Type=\"" +
           type +
           "worksheet\" Target=\"worksheets/sheet1.xml\"/>"
           "<Relationship Id=\"rId2\" Type=\"" +
           type +
           "worksheet\" Target=\"worksheets/sheet2.xml\"/>"
           "<Relationship Id=\"rId3\" Type=\"" +
           type +
           "styles\" Target=\"styles.xml\"/>"
           "</Relationships>";
}

QByteArray styles()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
           "<styleSheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\">"
           "<fonts count=\"2\"><font><sz val=\"11\"/><name val=\"Calibri\"/></font>"
           "<font><b/><sz val=\"11\"/><name val=\"Calibri\"/></font></fonts>"
           "<fills count=\"2\"><fill><patternFill patternType=\"none\"/></fill>"
           "<fill><patternFill patternType=\"gray125\"/></fill></fills>"
           "<borders "
           "count=\"1\"><border><left/><right/><top/><bottom/><diagonal/></border></borders>"
           "<cellStyleXfs count=\"1\"><xf numFmtId=\"0\" fontId=\"0\" fillId=\"0\" "
           "borderId=\"0\"/></cellStyleXfs>"
           "<cellXfs count=\"4\">"
           "<xf numFmtId=\"0\" fontId=\"0\" fillId=\"0\" borderId=\"0\" xfId=\"0\"/>"
           "<xf numFmtId=\"0\" fontId=\"1\" fillId=\"0\" borderId=\"0\" xfId=\"0\" "
           "applyFont=\"1\"/>"
           "<xf numFmtId=\"14\" fontId=\"0\" fillId=\"0\" borderId=\"0\" xfId=\"0\" "
           "applyNumberFormat=\"1\"/>"
           "<xf numFmtId=\"9\" fontId=\"0\" fillId=\"0\" borderId=\"0\" xfId=\"0\" "
           "applyNumberFormat=\"1\"/>"
           "</cellXfs></styleSheet>";
}

/** Writes a sheet row by row. */
class Sheet
{
public:
    explicit Sheet(const QStringList &headings)
        : m_xml(&m_bytes)
    {
        m_xml.writeStartDocument();
        m_xml.writeStartElement(QStringLiteral("worksheet"));
        m_xml.writeAttribute(
            QStringLiteral("xmlns"),
            QStringLiteral("http://schemas.openxmlformats.org/spreadsheetml/2006/main"));
        freezeHeadings();
        m_xml.writeStartElement(QStringLiteral("sheetData"));
        beginRow(0);
        for (const QString &heading : headings)
            addText(heading, Heading);
        endRow();
    }

    /** Begins a row, @p level levels deep. */
    void beginRow(int level)
    {
        constexpr int deepest = 7; // spreadsheets have no more
        m_xml.writeStartElement(QStringLiteral("row"));
        m_xml.writeAttribute(QStringLiteral("r"), QString::number(++m_row));
        if (level > 0)
            m_xml.writeAttribute(QStringLiteral("outlineLevel"),
                                 QString::number(qMin(level, deepest)));
        m_column = 0;
    }

    void endRow() { m_xml.writeEndElement(); }

    /** A text in the next cell: never a formula, whatever it begins with. */
    void addText(const QString &text, Form form = Plain)
    {
        if (text.isEmpty()) {
            ++m_column;
            return;
        }
        beginCell(form, "inlineStr");
        m_xml.writeStartElement(QStringLiteral("is"));
        m_xml.writeStartElement(QStringLiteral("t"));
        m_xml.writeAttribute(QStringLiteral("xml:space"), QStringLiteral("preserve"));
        m_xml.writeCharacters(XlsxText::escaped(text));
        m_xml.writeEndElement();
        m_xml.writeEndElement();
        m_xml.writeEndElement();
    }

    void addNumber(double number, Form form = Plain)
    {
        beginCell(form, "n");
        m_xml.writeTextElement(QStringLiteral("v"), QString::number(number, 'g', 15));
        m_xml.writeEndElement();
    }

    QByteArray bytes()
    {
        m_xml.writeEndDocument();
        return m_bytes;
    }

private:
    void freezeHeadings()
    {
        m_xml.writeStartElement(QStringLiteral("sheetViews"));
        m_xml.writeStartElement(QStringLiteral("sheetView"));
        m_xml.writeAttribute(QStringLiteral("workbookViewId"), QStringLiteral("0"));
        m_xml.writeEmptyElement(QStringLiteral("pane"));
        m_xml.writeAttribute(QStringLiteral("ySplit"), QStringLiteral("1"));
        m_xml.writeAttribute(QStringLiteral("topLeftCell"), QStringLiteral("A2"));
        m_xml.writeAttribute(QStringLiteral("state"), QStringLiteral("frozen"));
        m_xml.writeEndElement();
        m_xml.writeEndElement();
    }

    void beginCell(Form form, const char *type)
    {
        const QChar letter(ushort('A' + m_column++)); // no sheet has more than 26 columns
        m_xml.writeStartElement(QStringLiteral("c"));
        m_xml.writeAttribute(QStringLiteral("r"), letter + QString::number(m_row));
        if (form != Plain)
            m_xml.writeAttribute(QStringLiteral("s"), QString::number(form));
        m_xml.writeAttribute(QStringLiteral("t"), QLatin1String(type));
    }

    QByteArray m_bytes;
    QXmlStreamWriter m_xml;
    int m_row = 0;
    int m_column = 0;
};

QByteArray outline(const TreeItem &head)
{
    Sheet sheet(OwnTable::headings());
    OwnTable::walk(head, [&sheet](const QStringList &values, int level) {
        sheet.beginRow(level);
        for (std::size_t i = 0; i < OwnTable::columns().size(); ++i) {
            const QString &value = values.at(int(i));
            const bool isNumber =
                OwnTable::columns()[i].kind == OwnTable::Kind::Number && !value.isEmpty();
            if (isNumber)
                sheet.addNumber(value.toInt());
            else
                sheet.addText(value);
        }
        sheet.endRow();
    });
    return sheet.bytes();
}

bool isAction(const TreeItem &subject)
{
    return subject.status() != TreeItem::none || !subject.managerName().isEmpty() ||
           subject.planEndDate() != 0;
}

/** The day of a date as spreadsheets count it. */
double dayNumber(qint64 milliseconds)
{
    const QDate day = QDateTime::fromMSecsSinceEpoch(milliseconds).date();
    return double(QDate(1899, 12, 30).daysTo(day));
}

void addAction(Sheet &sheet, const TreeItem &subject)
{
    const bool isKnown =
        subject.status() >= TaskStatuses::unknown && subject.status() <= TaskStatuses::approval;
    constexpr double whole = 100;
    sheet.beginRow(0);
    sheet.addText(subject.title());
    sheet.addText(subject.parent() ? subject.parent()->title() : QString());
    sheet.addText(isKnown ? QString::fromLatin1(statusNames[subject.status()]) : QString());
    sheet.addNumber(subject.progress() / whole, Percent);
    if (subject.priority() >= 0)
        sheet.addNumber(subject.priority());
    else
        sheet.addText(QString());
    sheet.addText(subject.managerName());
    const double day = subject.planEndDate() == 0 ? -1 : dayNumber(subject.planEndDate());
    if (day > 0)
        sheet.addNumber(day, Date);
    else
        sheet.addText(QString());
    sheet.addText(subject.url());
    sheet.endRow();
}

QByteArray actions(const TreeItem &head)
{
    Sheet sheet(overviewHeadings);
    OutlineWalk::walk(head, [&sheet](const TreeItem &subject, int) {
        if (isAction(subject))
            addAction(sheet, subject);
    });
    return sheet.bytes();
}

} // namespace

namespace XlsxWriter {

QByteArray write(const TreeItem &head)
{
    return ZipWriter::archive({{QStringLiteral("[Content_Types].xml"), workbookTypes()},
                               {QStringLiteral("_rels/.rels"), packageParts()},
                               {QStringLiteral("xl/workbook.xml"), workbook()},
                               {QStringLiteral("xl/_rels/workbook.xml.rels"), workbookRelations()},
                               {QStringLiteral("xl/styles.xml"), styles()},
                               {QStringLiteral("xl/worksheets/sheet1.xml"), outline(head)},
                               {QStringLiteral("xl/worksheets/sheet2.xml"), actions(head)}});
}

bool isOverview(const std::vector<TaskTable::Row> &rows)
{
    return !rows.empty() && rows.front().cells == overviewHeadings;
}

} // namespace XlsxWriter
