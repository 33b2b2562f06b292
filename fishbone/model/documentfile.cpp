// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/documentfile.h>

#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/treeitem.h>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

/** Leaves room for the time, and for the ending of the temporary file, in the usual 255 bytes. */
constexpr int longestNamePart = 200;

} // namespace

namespace DocumentFile {

QByteArray text(const TreeItem &container)
{
    QJsonObject root;
    JsonNodes::Extent extent;
    if (container.childCount() > 0) {
        extent = JsonNodes::write(root, *container.childItems().last(), JsonNodes::readableLevels);
        if (extent.levels == 0)
            return QByteArray();
    }
    const QByteArray json = QJsonDocument(root).toJson();
    const bool mayBeTooDeep = extent.hasOtherFields || 2 * extent.levels + JsonNodes::styleNesting >
                                                           JsonNodes::readableNesting;
    if (mayBeTooDeep && JsonNodes::nesting(json) > JsonNodes::readableNesting)
        return QByteArray();
    return json;
}

void makeEmpty(const QString &fileName)
{
    QFile(fileName).open(QIODevice::WriteOnly | QIODevice::Truncate);
}

QString namePart(const QString &title, FileNames::System system)
{
    QString part = title;
    std::replace_if(
        part.begin(), part.end(), [system](QChar c) { return FileNames::isForbidden(c, system); },
        QLatin1Char('_'));
    if (system == FileNames::System::Windows && FileNames::isDevice(part))
        part.prepend(QLatin1Char('_'));
    while (part.toUtf8().size() > longestNamePart) {
        const int excess = part.toUtf8().size() - longestNamePart;
        part.chop(std::max(1, excess / 3)); // a UTF-16 unit makes at most three bytes
        if (part.at(part.size() - 1).isHighSurrogate())
            part.chop(1);
    }
    return part;
}

QString reserveName(const QString &folder, const QString &title)
{
    static qint64 lastStamp = 0;
    const QString stem = folder + namePart(title) + QLatin1Char('.');
    lastStamp = std::max(QDateTime::currentMSecsSinceEpoch(), lastStamp + 1);
    for (;; ++lastStamp) {
        const QString name = stem + QString::number(lastStamp);
        // Only one process gets a file that is new. Where none can be made, the name has to do.
        if (QFile(name).open(QIODevice::WriteOnly | QIODevice::NewOnly) || !QFileInfo::exists(name))
            return name;
    }
}

} // namespace DocumentFile
