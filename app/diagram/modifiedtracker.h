// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodel.h>

#include <QObject>
#include <QPointer>

/**
 * Marks documents as modified when their subjects change, by whichever way: undo and redo, drops
 * and changes in a document that is not shown included, which no editor marks.
 */
class ModifiedTracker : public QObject
{
    Q_OBJECT

public:
    explicit ModifiedTracker(FishModel *model, QObject *parent = nullptr);

Q_SIGNALS:
    /** Something in @p document changed; it is marked already. */
    void changed(FishInfo *document);

private:
    void mark(const QModelIndex &index);

    QPointer<FishModel> m_model;
};
