// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodellookup.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel_p.h>
#include <fishbone/model/subjectwalk.h>

#include <QSet>

bool FishModel::Lookup::contains(const TreeItem *item) const
{
    const auto differs = [item](const TreeItem *node) { return node != item; };
    for (int row = 0; row < documents().count(); ++row) {
        TreeItem *const head = documents().headAt(row);
        if (head && !visitSubjects(head, differs))
            return true;
    }
    return false;
}

QModelIndex FishModel::Lookup::documentNamed(const QString &fileName) const
{
    for (int row = 0; row < documents().count(); ++row) {
        if (documents().at(row)->fileName() == fileName)
            return m_model.index(row, 0);
    }
    return QModelIndex();
}

QModelIndex FishModel::Lookup::withUuid(const QString &uuid) const
{
    for (int row = 0; row < documents().count(); ++row) {
        const TreeItem *found = nullptr;
        const auto differs = [&uuid, &found](const TreeItem *node) {
            if (node->uuid() == uuid)
                found = node;
            return !found;
        };
        TreeItem *const head = documents().headAt(row);
        if (head && !visitSubjects(head, differs))
            return m_model.rowIndex(found);
    }
    return QModelIndex();
}

QModelIndexList FishModel::Lookup::withTitle(const QString &key) const
{
    QModelIndexList found;
    const auto collect = [this, &key, &found](const TreeItem *node) {
        if (node->title().contains(key, Qt::CaseInsensitive))
            found.append(m_model.rowIndex(node));
        return true;
    };
    for (int row = 0; row < documents().count(); ++row) {
        if (TreeItem *const head = documents().headAt(row))
            visitSubjects(head, collect);
    }
    return found;
}

FishInfo *FishModel::Lookup::documentOfTold(const TreeItem *item) const
{
    if (!item)
        return nullptr;
    const ChangeRecord &changes = m_model.m_d->changes;
    const bool isTold = changes.isTold(item);
    if ((isTold && changes.isTreeAsTold()) || contains(item))
        return m_model.fishOf(item);
    return isTold ? changes.toldDocument() : nullptr;
}

QList<QPointer<FishInfo>> FishModel::Lookup::changedSince(const QVector<FishModel *> &models,
                                                          quint64 stamp)
{
    QList<QPointer<FishInfo>> changed;
    for (const FishModel *model : models) {
        if (!model->m_d->changes.isChangedSince(stamp))
            continue;
        for (FishInfo *document : model->m_d->documents.all()) {
            if (ChangeRecord::stampOf(*document) > stamp)
                changed.append(document);
        }
    }
    return changed;
}

QModelIndexList FishModel::Lookup::ofRecords(const QVector<Record> &records) const
{
    // One walk over the tree for all of them: pointers from outside are compared, never followed.
    QSet<quintptr> unknown;
    for (const Record &record : records)
        unknown.insert(record.pointer);
    QSet<quintptr> known;
    const auto look = [&unknown, &known](TreeItem *node) {
        const auto pointer = reinterpret_cast<quintptr>(node);
        if (unknown.remove(pointer))
            known.insert(pointer);
        return !unknown.isEmpty();
    };
    for (int row = 0; row < documents().count() && !unknown.isEmpty(); ++row) {
        if (TreeItem *const head = documents().headAt(row))
            visitSubjects(head, look);
    }

    QModelIndexList indexes;
    indexes.reserve(records.size());
    for (const Record &record : records) {
        const bool exists = known.contains(record.pointer) && record.column >= 0 &&
                            record.column < m_model.columnCount();
        const auto *const item = reinterpret_cast<const TreeItem *>(record.pointer);
        indexes.append(exists ? m_model.rowIndex(item).siblingAtColumn(record.column)
                              : QModelIndex());
    }
    return indexes;
}
