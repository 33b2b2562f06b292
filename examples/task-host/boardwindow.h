// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishproxymodel.h>

#include <QMainWindow>

class FishModel;
class QLineEdit;
class QTreeView;

/** The model for a plain view: filtered, and with rows that can be dragged onto a diagram. */
class DragProxy : public FishProxyModel
{
    Q_OBJECT

public:
    using FishProxyModel::FishProxyModel;

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
    /** Shows the tasks whose titles contain @p text, and what is above them. */
    void setFilter(const QString &text);

Q_SIGNALS:
    /** The user wants to see the task @p uuid in its diagram. */
    void taskOpened(const QString &uuid);

private:
    DragProxy m_proxy;
    QLineEdit *m_filter; // a child
    QTreeView *m_tree;   // a child
};
