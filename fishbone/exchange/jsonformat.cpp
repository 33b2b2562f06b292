// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/base/jsonerrors.h>
#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/jsondiagram.h>
#include <fishbone/model/jsonnodes.h>

#include <QJsonDocument>

namespace {

bool readJson(const QByteArray &bytes, ImportedTree &tree)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (document.isNull())
        return tree.fail(JsonErrors::reason(bytes, error));
    const QString reason = JsonDiagram::reasonAgainst(document);
    if (!reason.isEmpty())
        return tree.fail(reason);
    JsonNodes::load(document.object(), tree.container());
    return true;
}

QByteArray writeJson(const TreeItem &head)
{
    QJsonObject object;
    JsonNodes::write(object, head, DiagramExchange::maximalLevels);
    return QJsonDocument(object).toJson();
}

} // namespace

const ExchangeFormat ExchangeFormats::json{DiagramExchange::Format::Json,
                                           "json",
                                           QT_TRANSLATE_NOOP("DiagramExchange", "Fishbone diagram"),
                                           "json",
                                           "title children * spearstyle",
                                           readJson,
                                           writeJson,
                                           nullptr,
                                           nullptr,
                                           true};
