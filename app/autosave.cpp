// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/autosave.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

namespace Autosave {

QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QStringLiteral("/autosave");
}

QString fileFor(const QString &path)
{
    // The hash keeps files of one name in different folders apart.
    const QByteArray hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256);
    return QStringLiteral("%1/%2-%3.json")
        .arg(folder(), QFileInfo(path).completeBaseName().left(60),
             QString::fromLatin1(hash.toHex().left(16)));
}

bool differs(const QString &path, const FishInfo *document)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QJsonObject left = QJsonDocument::fromJson(file.readAll()).object();
    QJsonObject current;
    FishModel::write(current, document->treeItem(), false);
    return !left.isEmpty() && left != current;
}

void redirect(FishInfo *document)
{
    QDir().mkpath(folder());
    const QString name = document->isUntitled() ? QStringLiteral("%1#%2")
                                                      .arg(QCoreApplication::applicationPid())
                                                      .arg(document->fileName())
                                                : document->fileName();
    document->setAutoSaveFile(fileFor(name));
}

void discard(FishInfo *document)
{
    if (QFileInfo::exists(document->autoSaveFile()))
        document->deleteOldTmpFile(document->autoSaveFile());
}

} // namespace Autosave
