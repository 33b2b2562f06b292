// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/subjectsnapshot.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/undo/subjectlookup.h>

#include <QJsonArray>

QJsonObject SubjectSnapshot::of(const QList<TreeItem *> &subjects)
{
    QJsonArray children;
    for (TreeItem *subject : subjects) {
        ensureUuids(subject);
        QJsonObject child;
        FishModel::write(child, subject, true);
        children.append(child);
    }
    if (children.count() == 1)
        return children.first().toObject();
    return children.isEmpty() ? QJsonObject() : QJsonObject{{QStringLiteral("children"), children}};
}

QStringList SubjectSnapshot::uuids(const QJsonObject &snapshot)
{
    const QString uuid = QStringLiteral("uuid");
    if (snapshot.contains(uuid))
        return {snapshot.value(uuid).toString()};
    QStringList uuids;
    const QJsonArray children = snapshot.value(QStringLiteral("children")).toArray();
    for (const QJsonValue &child : children)
        uuids.append(child.toObject().value(uuid).toString());
    return uuids;
}
