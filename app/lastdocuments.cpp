// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/lastdocuments.h>

#include <app/diagramsession.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

#include <QFileInfo>
#include <QSettings>

namespace {

QString wantedKey()
{
    return QStringLiteral("reopenDocuments");
}

QString filesKey()
{
    return QStringLiteral("openDocuments");
}

} // namespace

namespace LastDocuments {

bool areWanted()
{
    return QSettings().value(wantedKey(), true).toBool();
}

void setWanted(bool wanted)
{
    QSettings().setValue(wantedKey(), wanted);
}

void remember(const DiagramSession &session)
{
    QStringList paths;
    QString shown;
    const QList<FishInfo *> documents = session.model()->fishList();
    for (const FishInfo *document : documents) {
        if (document->isUntitled())
            continue;
        if (document == session.document())
            shown = document->fileName();
        else
            paths.append(document->fileName());
    }
    if (!shown.isEmpty())
        paths.append(shown);
    QSettings().setValue(filesKey(), paths);
}

QStringList files()
{
    QStringList present;
    if (!areWanted())
        return present;
    const QStringList paths = QSettings().value(filesKey()).toStringList();
    for (const QString &path : paths) {
        if (QFileInfo::exists(path))
            present.append(path);
    }
    return present;
}

} // namespace LastDocuments
