// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/tasktable.h>

#include <QByteArray>

#include <vector>

class TreeItem;

/** Writes Excel workbooks. */
namespace XlsxWriter {

/** A workbook of @p head: the whole outline in one sheet, what is to be done in another one. */
QByteArray write(const TreeItem &head);

/** Whether @p rows are the second sheet of such a workbook, all of which stands in the first. */
bool isOverview(const std::vector<TaskTable::Row> &rows);

} // namespace XlsxWriter
