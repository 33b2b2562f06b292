// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

class TreeItem;

/** Small pictures of documents. */
namespace DocumentPicture {

/** The diagram in the file @p path with its upper levels, as large as it fits into @p size; a null
 * one when there is none, or when it would take long to draw. */
QPixmap render(const QString &path, const QSize &size);

/** The diagram below @p head with all its levels, as large as it fits into @p size. */
QPixmap of(const TreeItem &head, const QSize &size);

} // namespace DocumentPicture
