// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <tests/support/documents.h>

/** The two versions of a document that saving.cpp writes in turn and its tests look for. */
namespace SavedVersions {

constexpr int count = 2;

/**
 * Version 0 or 1 of the document, loaded into @p model. They differ in size and in every subject.
 */
inline FishInfo *load(FishModel &model, int version, int nodes)
{
    const QString head = QStringLiteral("version %1").arg(version);
    QJsonArray bones;
    for (int i = 1; i < nodes * (version + 1); ++i)
        bones.append(TestSupport::nodeObject(QStringLiteral("%1 of %2").arg(i).arg(head),
                                             QStringLiteral("u-%1").arg(i), QStringLiteral("u")));
    QJsonObject object = TestSupport::nodeObject(head, QStringLiteral("u"), QStringLiteral("-1"));
    object.insert(QStringLiteral("children"), bones);
    return TestSupport::loadDocument(model, object);
}

/** The bytes that a file with that version has. */
inline QByteArray bytes(int version, int nodes)
{
    FishModel model;
    QJsonObject object;
    FishModel::write(object, load(model, version, nodes)->treeItem(), false);
    return QJsonDocument(object).toJson();
}

} // namespace SavedVersions
