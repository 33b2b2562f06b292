// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodel.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace TestSupport {

inline QJsonObject objectFrom(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}

inline QJsonObject written(TreeItem &node)
{
    QJsonObject object;
    FishModel::write(object, &node, true);
    return object;
}

} // namespace TestSupport
