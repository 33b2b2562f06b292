// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/mergeside.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QCryptographicHash>
#include <QJsonArray>

#include <vector>

MergeSide::MergeSide(TreeItem *head)
{
    struct Open
    {
        QString key;
        QJsonArray below;
        int next;
    };
    QJsonObject root;
    FishModel::write(root, head, true);
    std::vector<Open> open;
    if (!root.isEmpty())
        open.push_back({QString(), QJsonArray{root}, 0});
    while (!open.empty()) {
        Open &last = open.back();
        if (last.next == last.below.size()) {
            open.pop_back();
            continue;
        }
        QJsonObject fields = last.below.at(last.next++).toObject();
        const QString parent = last.key;
        const QJsonArray below = fields.take(QStringLiteral("children")).toArray();
        const QString key = keyOf(fields, parent);
        subjects.insert(key, {fields, parent});
        children[parent].append(key);
        order.append(key);
        open.push_back({key, below, 0}); // which ends the life of last
    }
}

bool MergeSide::changes(const QString &key, const MergeSide &base) const
{
    const Subject &here = *subjects.constFind(key);
    const Subject &before = *base.subjects.constFind(key);
    return here.parent != before.parent || here.fields != before.fields;
}

QString MergeSide::keyOf(const QJsonObject &fields, const QString &parent)
{
    const QString uuid = QLatin1String("uuid ") + fields.value(QLatin1String("uuid")).toString();
    if (TreeItem::isIdentity(uuid.mid(5)) && !has(uuid))
        return uuid;
    if (parent.isEmpty())
        return QStringLiteral("head");
    // A digest, because a path in words would grow with the depth.
    const QString path =
        parent + QLatin1Char('\n') + fields.value(QLatin1String("title")).toString();
    const QString digest = QString::fromLatin1(
        QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha1).toHex());
    return QStringLiteral("path %1 %2").arg(digest).arg(m_sameNames[digest]++);
}
