// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

#include <QModelIndex>
#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>

/** What has changed last in a model. */
class ModelChanges : public QObject
{
    Q_OBJECT

public:
    explicit ModelChanges(FishModel *model, QObject *parent = nullptr);

    /** Begins anew: nothing has changed. */
    void forget();

    /** The newest row, invalid when there is none or it is gone. */
    QModelIndex inserted() const { return m_inserted; }
    /** What a row was removed from last, invalid when there was none or it is gone. */
    QModelIndex removedFrom() const { return m_removedFrom; }
    /** The document that changed last, null when there is none or it is gone. */
    FishInfo *document() const { return m_document; }

Q_SIGNALS:
    /** Something has changed; document() may be what it was. */
    void happened();
    /** A subject of document() has changed, came or went; the document is marked as modified. */
    void documentChanged();

private:
    QPersistentModelIndex m_inserted;
    QPersistentModelIndex m_removedFrom;
    QPointer<FishInfo> m_document;
};
