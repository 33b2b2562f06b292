// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/payloadcopy.h>

#include <QMimeData>
#include <QStringList>

std::unique_ptr<QMimeData> payloadCopy(const QMimeData &payload)
{
    auto copy = std::make_unique<QMimeData>();
    const QStringList formats = payload.formats();
    for (const QString &format : formats)
        copy->setData(format, payload.data(format));
    return copy;
}
