// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangeinput.h>

#include <fishbone/exchange/diagramexchange.h>

#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 chunkSize = 1 << 20;

/** At most @p limit bytes. In pieces, since a device makes room for all that it is asked for. */
QByteArray readUpTo(QIODevice &device, qint64 limit)
{
    QByteArray bytes;
    while (bytes.size() < limit) {
        const QByteArray piece = device.read(qMin<qint64>(chunkSize, limit - bytes.size()));
        if (piece.isEmpty())
            break;
        bytes += piece;
    }
    return bytes;
}

void refuse(QString *error, const QString &reason)
{
    if (error)
        *error = reason;
}

} // namespace

namespace ExchangeInput {

QByteArray bytesIn(QIODevice &device, QString *error)
{
    const QByteArray bytes = readUpTo(device, DiagramExchange::maximalBytes + 1);
    if (bytes.size() > DiagramExchange::maximalBytes) {
        refuse(error, DiagramExchange::tr("it is larger than %1 MiB")
                          .arg(DiagramExchange::maximalBytes >> 20));
        return QByteArray();
    }
    if (bytes.isEmpty()) {
        refuse(error, DiagramExchange::tr("it is empty"));
        return QByteArray();
    }
    return bytes;
}

bool openFile(QFile &file, const QString &fileName, QString *error)
{
    const QFileInfo info(fileName);
    file.setFileName(fileName);
    if (info.isDir())
        refuse(error, DiagramExchange::tr("it is a folder"));
    else if (!info.exists())
        refuse(error, DiagramExchange::tr("there is no such file"));
    else if (!file.open(QIODevice::ReadOnly))
        refuse(error, file.errorString());
    else
        return true;
    return false;
}

} // namespace ExchangeInput
