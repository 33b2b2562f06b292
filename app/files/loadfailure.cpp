// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/loadfailure.h>

#include <app/common/formatnames.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/jsondiagram.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonParseError>

namespace {

bool hasUnknownEnding(const QString &path)
{
    return !QFileInfo(path).suffix().isEmpty() && !DiagramExchange::formatOf(path);
}

} // namespace

QString LoadFailure::reasonOf(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir())
        return tr("it is a folder");
    if (!info.exists())
        return tr("there is no such file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    const QByteArray content = file.readAll();
    QJsonParseError error;
    if (QJsonDocument::fromJson(content, &error).isNull() && hasUnknownEnding(path))
        return tr("its ending is none of those that can be read: %1")
            .arg(FormatNames::endings(DiagramExchange::canRead));
    return reasonOfText(content, error);
}

QString LoadFailure::reasonOfText(const QByteArray &json, const QJsonParseError &error)
{
    return json.isEmpty() ? tr("it is empty") : JsonDiagram::reasonAgainst(json, error);
}
