// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIdentityProxyModel>
#include <QMainWindow>

class FishModel;
class QTreeView;

/** The model for a plain view whose rows can be dragged onto a diagram. */
class DragProxy : public QIdentityProxyModel
{
    Q_OBJECT

public:
    using QIdentityProxyModel::QIdentityProxyModel;

    /** As the model's, and they can be dragged. */
    Qt::ItemFlags flags(const QModelIndex &index) const override;
};

/** All tasks of all diagrams in a tree view, beside the windows with diagrams. */
class BoardWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit BoardWindow(FishModel &model, QWidget *parent = nullptr);

    QTreeView &tree() const { return *m_tree; }

Q_SIGNALS:
    /** The user wants to see the task @p uuid in its diagram. */
    void taskOpened(const QString &uuid);

private:
    DragProxy m_proxy;
    QTreeView *m_tree; // a child
};
