// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/tasktable.h>
#include <fishbone/exchange/xlsxnumbers.h>

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

#include <vector>

class ImportedTree;
class QXmlStreamReader;
class ZipReader;

/** Reads the sheets of an Excel workbook as rows of texts. */
class XlsxReader
{
public:
    /** The columns that are read of a sheet. */
    static constexpr int maximalColumns = 256;
    /** The cells that are read of a sheet. */
    static constexpr qint64 maximalCells = 10000000;

    XlsxReader(ZipReader &archive, ImportedTree &tree)
        : m_archive(archive)
        , m_tree(tree)
    {
    }

    /** Opens the workbook; false when the tree failed. */
    bool open();
    /** The names of the sheets. */
    QStringList sheets() const { return m_names; }
    /** Reads the rows of a sheet; false when the tree failed. */
    bool read(int sheet, std::vector<TaskTable::Row> &rows);

private:
    /** The targets of the relations that a part of the workbook has, by their ids. */
    QHash<QString, QString> relationsOf(const QString &part);
    bool readPart(const QString &name, const QString &root,
                  bool (XlsxReader::*element)(QXmlStreamReader &));
    bool readWorkbookElement(QXmlStreamReader &xml);
    bool readSharedString(QXmlStreamReader &xml);
    bool readStyle(QXmlStreamReader &xml);
    bool readSheetElement(QXmlStreamReader &xml);
    bool readRow(QXmlStreamReader &xml);
    bool readCell(QXmlStreamReader &xml, TaskTable::Row &row);
    QString cellText(const QString &type, int style, const QString &value) const;
    void takeFormula(const QString &formula, qint64 line, int column);
    void addLink(const QString &target, qint64 line, int column);
    void addLinks();

    ZipReader &m_archive;
    ImportedTree &m_tree;
    QStringList m_names;
    QStringList m_paths; ///< of the sheets, in the archive
    QHash<QString, QString> m_workbookRelations;
    QStringList m_sharedStrings;
    XlsxNumbers m_numbers;
    bool m_areCellStyles = false; ///< what is being read of the styles
    std::vector<TaskTable::Row> *m_rows = nullptr;
    QHash<QString, QString> m_linkIds;         ///< of cells
    QHash<qint64, QMap<int, QString>> m_links; ///< of rows, by the columns
    QHash<QString, QString> m_sheetRelations;
    qint64 m_cells = 0;
};
