// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <boardwindow.h>

#include <fishbone/model/fishmodel.h>

#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>

Qt::ItemFlags DragProxy::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = FishProxyModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

BoardWindow::BoardWindow(FishModel &model, QWidget *parent)
    : QMainWindow(parent)
    , m_filter(new QLineEdit(this))
    , m_tree(new QTreeView(this))
{
    setWindowTitle(tr("All tasks"));
    m_proxy.setSourceModel(&model);
    m_tree->setModel(&m_proxy);
    m_tree->setDragEnabled(true);
    for (int column = 1; column < m_proxy.columnCount(); ++column)
        m_tree->hideColumn(column);
    m_filter->setPlaceholderText(tr("Filter"));
    m_proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    auto *const middle = new QWidget(this);
    auto *const column = new QVBoxLayout(middle);
    column->addWidget(m_filter);
    column->addWidget(m_tree);
    setCentralWidget(middle);
    connect(m_filter, &QLineEdit::textChanged, &m_proxy, &DragProxy::setFilterFixedString);
    connect(m_tree, &QTreeView::activated, this, [this](const QModelIndex &index) {
        constexpr int uuidColumn = 1;
        Q_EMIT taskOpened(index.siblingAtColumn(uuidColumn).data().toString());
    });
}

void BoardWindow::setFilter(const QString &text)
{
    m_filter->setText(text);
}
