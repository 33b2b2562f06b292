// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/foreignformats.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/model/jsonnodes.h>

#include <QJsonDocument>

namespace {

QString reasonOf(const QByteArray &json, const QJsonParseError &error)
{
    return DiagramExchange::tr("it is not a JSON document (line %1: %2)")
        .arg(json.left(error.offset).count('\n') + 1)
        .arg(error.errorString());
}

} // namespace

bool JsonFormat::read(const QByteArray &bytes, ImportedTree &tree)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (document.isNull())
        return tree.fail(reasonOf(bytes, error));
    JsonNodes::load(document.object(), tree.container());
    return true;
}

QByteArray JsonFormat::write(const TreeItem &head)
{
    QJsonObject object;
    JsonNodes::write(object, head, DiagramExchange::maximalLevels);
    return QJsonDocument(object).toJson();
}
