// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/lastdocuments.h>

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

QString shownKey()
{
    return QStringLiteral("shownDocument");
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

void remember(const QStringList &paths, const QString &shown)
{
    QSettings settings;
    settings.setValue(filesKey(), paths);
    settings.setValue(shownKey(), shown);
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

QString shownFile()
{
    return QSettings().value(shownKey()).toString();
}

} // namespace LastDocuments
