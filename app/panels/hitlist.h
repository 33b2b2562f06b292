// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndexList>
#include <QTreeWidget>

#include <functional>

class FishModel;

/**
 * The subjects that a search has found: the text that was found, what it will be after a
 * replacement, and where the subject stands. Those that a replacement would change have a check
 * box.
 */
class HitList : public QTreeWidget
{
    Q_OBJECT

public:
    /** What a text will be; the same when nothing is replaced in it. */
    using Replacement = std::function<QString(const QString &)>;

    explicit HitList(const FishModel *model, QWidget *parent = nullptr);

    /** From now on lists subjects of @p model. */
    void setSource(const FishModel *model) { m_model = model; }
    /** Lists @p hits, subjects of the model, of each the text in their column. All that can be are
     * checked. */
    void setHits(const QModelIndexList &hits, const Replacement &replacement);
    /** Shows what @p replacement makes of the texts. */
    void preview(const Replacement &replacement);
    /** Makes the hit in @p row the current one without a signal; none for -1. */
    void setCurrentHit(int row);
    /** The rows whose box is checked. */
    QList<int> checkedRows() const;

Q_SIGNALS:
    /** The user went to the hit in @p row. */
    void hitChosen(int row);

private:
    const FishModel *m_model;
};
