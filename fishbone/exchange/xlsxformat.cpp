// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/tasktable.h>
#include <fishbone/exchange/xlsxreader.h>
#include <fishbone/exchange/xlsxwriter.h>
#include <fishbone/exchange/ziparchive.h>

namespace {

void noteSheet(const QString &name, ImportedTree &tree)
{
    tree.note(ExchangeReport::Kind::LeftOut, DiagramExchange::tr("the sheet \"%1\"").arg(name));
}

/** The rows of the first sheet with a column of titles, or of the first one when there is none. */
bool readSheet(XlsxReader &workbook, ImportedTree &tree, std::vector<TaskTable::Row> &rows)
{
    const QStringList sheets = workbook.sheets();
    int chosen = -1;
    for (int sheet = 0; sheet < sheets.size(); ++sheet) {
        std::vector<TaskTable::Row> found;
        if (!workbook.read(sheet, found))
            return false;
        const bool isTable = TaskTable::headerOf(found) >= 0;
        if (chosen < 0 && (isTable || sheet == 0)) {
            if (!rows.empty())
                noteSheet(sheets.constFirst(), tree);
            rows = found;
            chosen = isTable ? sheet : -1;
        } else if (!found.empty() && !XlsxWriter::isOverview(found)) {
            noteSheet(sheets.at(sheet), tree);
        }
    }
    return true;
}

bool readSheetRows(const QByteArray &bytes, ImportedTree &tree, std::vector<TaskTable::Row> &rows)
{
    ZipReader archive(bytes, tree);
    if (!archive.isOpen())
        return false;
    XlsxReader workbook(archive, tree);
    return workbook.open() && readSheet(workbook, tree, rows);
}

bool readXlsx(const QByteArray &bytes, ImportedTree &tree)
{
    std::vector<TaskTable::Row> rows;
    return readSheetRows(bytes, tree, rows) &&
           TaskTable::read(rows, tree, TaskTable::Texts::AsTheyAre);
}

} // namespace

const ExchangeFormat ExchangeFormats::xlsx{DiagramExchange::Format::Xlsx,
                                           "xlsx",
                                           QT_TRANSLATE_NOOP("DiagramExchange", "Excel workbook"),
                                           "xlsx",
                                           "title children *",
                                           readXlsx,
                                           XlsxWriter::write,
                                           readSheetRows};
