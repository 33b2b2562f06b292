// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/jsonfile.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace JsonFile {

QJsonObject read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

bool write(const QString &path, const QJsonObject &object, Readers readers)
{
    QSaveFile file(path);
    const QByteArray text = QJsonDocument(object).toJson();
    const auto restrict = [&file, readers] {
        return readers == Readers::Anybody ||
               file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    };
    // What stays in the buffer until the commit could fail without a report.
    return file.open(QIODevice::WriteOnly) &&restrict() && file.write(text) == text.size() &&
           file.flush() && file.commit();
}

} // namespace JsonFile
