// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/filereplacement.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

/**
 * Opens the file and hands the whole content on to the system. What stays in the buffer until the
 * file is closed or committed could fail without a report.
 */
bool write(QFileDevice &file, const QByteArray &content)
{
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
}

QString reason(const QFileDevice &file)
{
    const QString text = file.errorString();
    return text.isEmpty() ? QStringLiteral("?") : text;
}

} // namespace

QString replaceFile(const QString &fileName, const QByteArray &content)
{
    const QFileInfo target(fileName);
    if (target.exists() && !target.isFile()) {
        QFile device(fileName); // replacing a device or a pipe would remove it
        return write(device, content) ? QString() : reason(device);
    }
    QSaveFile file(fileName);
    file.setDirectWriteFallback(true);
    return write(file, content) && file.commit() ? QString() : reason(file);
}
