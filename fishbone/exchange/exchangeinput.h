// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

class QFile;
class QIODevice;
class QString;

/** What diagrams are read from. Each @p error says why, as for DiagramExchange::read(). */
namespace ExchangeInput {

/** All bytes of @p device; null, with an error, when there are too many, or none at all. */
QByteArray bytesIn(QIODevice &device, QString *error);

/** Opens the file @p fileName for reading; false, with an error, when that fails. */
bool openFile(QFile &file, const QString &fileName, QString *error);

} // namespace ExchangeInput
