// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QWidget;

/** Asks where to write a file in one of several formats. */
namespace SaveDialog {

/**
 * The file that the user chooses, @p proposed to begin with; empty when the user cancels. Each of
 * @p filters names a format, whose ending stands in the same place of @p suffixes; choosing another
 * format changes the ending.
 */
QString chosenFile(QWidget *parent, const QString &title, const QString &proposed,
                   const QStringList &filters, const QStringList &suffixes);

} // namespace SaveDialog
