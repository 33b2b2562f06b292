// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QItemSelection>
#include <QModelIndexList>
#include <QSet>
#include <QTreeView>
#include <QWidget>

#include <functional>
#include <optional>

class FishModel;
class QLineEdit;
class SubjectProxyModel;
class TreeItem;

/** A tree view whose drags move what is dragged and leave it to the receiver to carry that out. */
class SubjectTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit SubjectTreeView(QWidget *parent = nullptr);

    /** Until the next event, expanding and collapsing rows costs no layout. */
    void delayLayout() { scheduleDelayedItemsLayout(); }

    void setModel(QAbstractItemModel *model) override;

protected:
    bool event(QEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;

private:
    bool m_areRowsGoing = false;
};

/** The open documents as a tree of subjects, with a field that filters them by title. */
class SubjectTree : public QWidget
{
    Q_OBJECT

public:
    explicit SubjectTree(FishModel *model, QWidget *parent = nullptr);

    SubjectTreeView *view() const { return m_view; }
    SubjectProxyModel *proxy() const { return m_proxy; }

    /** Whether a filter is set. Everything that matches is shown expanded then. */
    bool isFiltered() const;
    /** Shows of what the field lets through only @p subjects, which are only compared; nothing for
     * all. */
    void setShown(const std::optional<QSet<const TreeItem *>> &subjects);

    /** The selected subjects as indexes of the documents' model, in the order of the tree. */
    QModelIndexList selectedSubjects() const;
    /** Selects exactly these subjects, given as indexes of the documents' model. */
    void selectSubjects(const QModelIndexList &indexes);

    /** Announces that the user wants @p title for the subject in the row @p row of the view. */
    void rename(const QModelIndex &row, const QString &title);

Q_SIGNALS:
    /** The user has typed @p title for the subject at @p index of the documents' model. */
    void renameWanted(const QModelIndex &index, const QString &title);
    /** The filter is about to hide and show rows. */
    void filterAboutToChange();
    /** The filter has hidden and shown rows. */
    void filterChanged();

private:
    void refilter(const std::function<void()> &change);

    SubjectProxyModel *m_proxy;
    QLineEdit *m_filter;
    SubjectTreeView *m_view;
};
