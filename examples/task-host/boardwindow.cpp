// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <boardwindow.h>

#include <fishbone/model/fishmodel.h>

#include <QTreeView>

Qt::ItemFlags DragProxy::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QIdentityProxyModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

BoardWindow::BoardWindow(FishModel &model, QWidget *parent)
    : QMainWindow(parent)
    , m_tree(new QTreeView(this))
{
    setWindowTitle(tr("All tasks"));
    m_proxy.setSourceModel(&model);
    m_tree->setModel(&m_proxy);
    m_tree->setDragEnabled(true);
    for (int column = 1; column < m_proxy.columnCount(); ++column)
        m_tree->hideColumn(column);
    setCentralWidget(m_tree);
    connect(m_tree, &QTreeView::activated, this, [this](const QModelIndex &index) {
        constexpr int uuidColumn = 1;
        Q_EMIT taskOpened(index.siblingAtColumn(uuidColumn).data().toString());
    });
}
