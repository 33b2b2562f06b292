// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/csvtable.h>
#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/owntable.h>
#include <fishbone/exchange/tasktable.h>

namespace {

bool readRows(const QByteArray &bytes, ImportedTree &tree, std::vector<TaskTable::Row> &rows)
{
    const std::optional<QString> text = ExchangeText::decode(bytes, tree);
    if (!text)
        return false;
    rows = CsvTable::parse(*text, tree);
    return tree.error().isEmpty();
}

bool readCsv(const QByteArray &bytes, ImportedTree &tree)
{
    std::vector<TaskTable::Row> rows;
    return readRows(bytes, tree, rows) && TaskTable::read(rows, tree, TaskTable::Texts::Guarded);
}

QByteArray writeCsv(const TreeItem &head)
{
    // The mark tells spreadsheets the encoding, which some would not guess.
    QByteArray bytes = "\xef\xbb\xbf" + CsvTable::line(OwnTable::headings());
    OwnTable::walk(head, [&bytes](QStringList values, int) {
        for (std::size_t i = 0; i < OwnTable::columns().size(); ++i) {
            if (OwnTable::columns()[i].kind == OwnTable::Kind::Text)
                values[int(i)] = CsvTable::guarded(values.at(int(i)));
        }
        bytes += CsvTable::line(values);
    });
    return bytes;
}

} // namespace

const ExchangeFormat ExchangeFormats::csv{DiagramExchange::Format::Csv,
                                          "csv",
                                          QT_TRANSLATE_NOOP("DiagramExchange", "Table of tasks"),
                                          "csv",
                                          "title children *",
                                          readCsv,
                                          writeCsv,
                                          readRows};
