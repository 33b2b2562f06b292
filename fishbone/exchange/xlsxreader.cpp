// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/xlsxreader.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/xlsxtext.h>
#include <fishbone/exchange/xmlsupport.h>
#include <fishbone/exchange/ziparchive.h>

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

using Kind = ExchangeReport::Kind;

const QString workbookPart = QStringLiteral("xl/workbook.xml");

QString valueOf(const QXmlStreamReader &xml, const char *name)
{
    return xml.attributes().value(QLatin1String(name)).toString();
}

/** The value of an attribute of any namespace. */
QString localValueOf(const QXmlStreamReader &xml, const char *name)
{
    const QXmlStreamAttributes values = xml.attributes();
    for (const QXmlStreamAttribute &value : values) {
        if (value.name() == QLatin1String(name))
            return value.value().toString();
    }
    return QString();
}

/** The column that a reference such as "AB12" names, from 0 on; -1 for none. */
int columnOf(const QString &reference)
{
    constexpr int letters = 26;
    constexpr int longest = 3;
    int column = 0;
    int i = 0;
    for (; i < reference.size() && i < longest; ++i) {
        const char16_t c = reference.at(i).toUpper().unicode();
        if (c < u'A' || c > u'Z')
            break;
        column = column * letters + int(c - u'A') + 1;
    }
    return column - 1;
}

/** The texts of all runs of the element that was entered, without the marks of pronunciation. */
QString runs(QXmlStreamReader &xml)
{
    QString text;
    int depth = 1;
    while (depth > 0 && !xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement) {
            --depth;
        } else if (token == QXmlStreamReader::StartElement && xml.name() == QLatin1String("t")) {
            text += XmlSupport::textOf(xml);
        } else if (token == QXmlStreamReader::StartElement) {
            if (xml.name() == QLatin1String("rPh"))
                xml.skipCurrentElement();
            else
                ++depth;
        }
    }
    return XlsxText::unescaped(text);
}

} // namespace

QHash<QString, QString> XlsxReader::relationsOf(const QString &part)
{
    const int slash = int(part.lastIndexOf(QLatin1Char('/')));
    const QString folder = part.left(slash + 1);
    QHash<QString, QString> targets;
    const auto bytes = m_archive.file(folder + QLatin1String("_rels/") + part.mid(slash + 1) +
                                      QLatin1String(".rels"));
    if (!bytes)
        return targets;
    QXmlStreamReader xml(*bytes);
    if (!XmlSupport::enterRoot(xml, QStringLiteral("Relationships"), m_tree))
        return targets;
    while (xml.readNextStartElement()) {
        const QString target = valueOf(xml, "Target");
        const bool isOutside = valueOf(xml, "TargetMode") == QLatin1String("External");
        const bool isWhole = target.startsWith(QLatin1Char('/'));
        targets.insert(valueOf(xml, "Id"), isOutside ? target
                                           : isWhole ? target.mid(1)
                                                     : folder + target);
        xml.skipCurrentElement();
    }
    return targets;
}

/** Goes through all elements of a part; @p element takes one and says whether that worked. */
bool XlsxReader::readPart(const QString &name, const QString &root,
                          bool (XlsxReader::*element)(QXmlStreamReader &))
{
    const auto bytes = m_archive.file(name);
    if (!bytes)
        return m_tree.error().isEmpty() &&
               m_tree.fail(DiagramExchange::tr("the archive has no file \"%1\", as workbooks do")
                               .arg(name));
    QXmlStreamReader xml(*bytes);
    if (!XmlSupport::enterRoot(xml, root, m_tree))
        return false;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && !(this->*element)(xml))
            return false;
    }
    return XmlSupport::finish(xml, m_tree, *bytes);
}

bool XlsxReader::open()
{
    m_workbookRelations = relationsOf(workbookPart);
    if (!m_tree.error().isEmpty() ||
        !readPart(workbookPart, QStringLiteral("workbook"), &XlsxReader::readWorkbookElement))
        return false;
    const QString strings = QStringLiteral("xl/sharedStrings.xml");
    const QString styles = QStringLiteral("xl/styles.xml");
    return (!m_archive.contains(strings) ||
            readPart(strings, QStringLiteral("sst"), &XlsxReader::readSharedString)) &&
           (!m_archive.contains(styles) ||
            readPart(styles, QStringLiteral("styleSheet"), &XlsxReader::readStyle));
}

bool XlsxReader::readWorkbookElement(QXmlStreamReader &xml)
{
    if (xml.name() == QLatin1String("workbookPr")) {
        const QString value = valueOf(xml, "date1904");
        m_numbers.setSince1904(value == QLatin1String("1") || value == QLatin1String("true"));
    } else if (xml.name() == QLatin1String("sheet")) {
        m_names.append(valueOf(xml, "name"));
        m_paths.append(m_workbookRelations.value(localValueOf(xml, "id")));
    }
    return true;
}

bool XlsxReader::readSharedString(QXmlStreamReader &xml)
{
    if (xml.name() == QLatin1String("si"))
        m_sharedStrings.append(runs(xml));
    return true;
}

bool XlsxReader::readStyle(QXmlStreamReader &xml)
{
    if (xml.name() == QLatin1String("numFmt")) {
        m_numbers.addForm(valueOf(xml, "numFmtId").toInt(), valueOf(xml, "formatCode"));
    } else if (xml.name() == QLatin1String("cellXfs") ||
               xml.name() == QLatin1String("cellStyleXfs")) {
        m_areCellStyles = xml.name() == QLatin1String("cellXfs");
    } else if (xml.name() == QLatin1String("xf") && m_areCellStyles) {
        m_numbers.addStyle(valueOf(xml, "numFmtId").toInt());
    }
    return true;
}

bool XlsxReader::read(int sheet, std::vector<TaskTable::Row> &rows)
{
    m_rows = &rows;
    m_linkIds.clear();
    m_links.clear();
    m_cells = 0;
    m_sheetRelations = relationsOf(m_paths.at(sheet));
    if (!m_tree.error().isEmpty() ||
        !readPart(m_paths.at(sheet), QStringLiteral("worksheet"), &XlsxReader::readSheetElement))
        return false;
    addLinks();
    return true;
}

bool XlsxReader::readSheetElement(QXmlStreamReader &xml)
{
    if (xml.name() == QLatin1String("row"))
        return readRow(xml);
    if (xml.name() == QLatin1String("hyperlink"))
        m_linkIds.insert(valueOf(xml, "ref"), localValueOf(xml, "id"));
    else if (xml.name() == QLatin1String("legacyDrawing"))
        m_tree.note(Kind::LeftOut, DiagramExchange::tr("remarks at cells"));
    else if (xml.name() == QLatin1String("drawing"))
        m_tree.note(Kind::LeftOut, DiagramExchange::tr("drawings"));
    return true;
}

bool XlsxReader::readRow(QXmlStreamReader &xml)
{
    TaskTable::Row row;
    row.indent = valueOf(xml, "outlineLevel").toInt();
    const QString number = valueOf(xml, "r");
    row.line =
        number.isEmpty() ? (m_rows->empty() ? 0 : m_rows->back().line) + 1 : number.toLongLong();
    while (xml.readNextStartElement()) {
        if (xml.name() != QLatin1String("c"))
            xml.skipCurrentElement();
        else if (!readCell(xml, row))
            return false;
    }
    const bool isEmpty = std::all_of(row.cells.cbegin(), row.cells.cend(),
                                     [](const QString &cell) { return cell.isEmpty(); });
    if (!isEmpty)
        m_rows->push_back(row);
    return true;
}

bool XlsxReader::readCell(QXmlStreamReader &xml, TaskTable::Row &row)
{
    const QString type = valueOf(xml, "t");
    const int style = valueOf(xml, "s").toInt();
    const QString reference = valueOf(xml, "r");
    const int column = reference.isEmpty() ? int(row.cells.size()) : columnOf(reference);
    QString text;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("v"))
            text = cellText(type, style, xml.readElementText());
        else if (xml.name() == QLatin1String("is"))
            text = runs(xml);
        else if (xml.name() == QLatin1String("f"))
            takeFormula(xml.readElementText(), row.line, column);
        else
            xml.skipCurrentElement();
    }
    if (text.isEmpty())
        return true;
    if (column < 0 || column >= maximalColumns) {
        m_tree.note(Kind::LeftOut,
                    DiagramExchange::tr("cells behind column %1").arg(maximalColumns), row.line);
        return true;
    }
    m_cells += qMax(column + 1 - int(row.cells.size()), 0);
    if (m_cells > maximalCells)
        return m_tree.fail(row.line, DiagramExchange::tr("there are too many cells"));
    while (row.cells.size() <= column)
        row.cells.append(QString());
    row.cells[column] = text;
    return true;
}

QString XlsxReader::cellText(const QString &type, int style, const QString &value) const
{
    if (type == QLatin1String("s"))
        return m_sharedStrings.value(value.toInt());
    if (type == QLatin1String("b"))
        return value == QLatin1String("1") ? QStringLiteral("true") : QStringLiteral("false");
    if (type == QLatin1String("str") || type == QLatin1String("e") || type == QLatin1String("d"))
        return XlsxText::unescaped(value);
    return m_numbers.text(value, style);
}

/** Takes the link that a formula makes; of all others the result counts. */
void XlsxReader::takeFormula(const QString &formula, qint64 line, int column)
{
    static const QRegularExpression form(QStringLiteral("^\\s*HYPERLINK\\(\\s*\"([^\"]++)\""),
                                         QRegularExpression::CaseInsensitiveOption);
    if (const auto match = form.match(formula); match.hasMatch())
        addLink(match.captured(1), line, column);
}

void XlsxReader::addLink(const QString &target, qint64 line, int column)
{
    if (target.isEmpty() || target.startsWith(QLatin1Char('#')))
        m_tree.note(Kind::LeftOut, DiagramExchange::tr("a link within the workbook"), line);
    else
        m_links[line].insert(column, target);
}

/** Adds the links of cells as a column of their own, those of a row in the order of the cells. */
void XlsxReader::addLinks()
{
    const int header = TaskTable::headerOf(*m_rows);
    if (header < 0)
        return;
    for (auto link = m_linkIds.cbegin(); link != m_linkIds.cend(); ++link) {
        static const QRegularExpression digits(QStringLiteral("\\d+"));
        const qint64 line = digits.match(link.key()).captured().toLongLong();
        addLink(m_sheetRelations.value(link.value()), line, columnOf(link.key()));
    }
    if (m_links.isEmpty())
        return;
    int width = 0;
    for (const TaskTable::Row &row : *m_rows)
        width = qMax(width, int(row.cells.size()));
    for (std::size_t i = 0; i < m_rows->size(); ++i) {
        TaskTable::Row &row = (*m_rows)[i];
        QStringList links;
        for (const QString &link : m_links.value(row.line)) {
            if (!row.cells.contains(link) && !links.contains(link))
                links.append(link);
        }
        const QString text =
            int(i) == header ? QStringLiteral("Link") : links.join(QLatin1Char(' '));
        if (text.isEmpty())
            continue;
        while (row.cells.size() < width)
            row.cells.append(QString());
        row.cells.append(text);
    }
}
