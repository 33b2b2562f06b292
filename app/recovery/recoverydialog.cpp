// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/recovery/recoverydialog.h>

#include <app/recovery/recoverymodel.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

RecoveryDialog::RecoveryDialog(const QList<LeftCopy> &copies, QWidget *parent)
    : QDialog(parent)
    , m_model(new RecoveryModel(copies, this))
    , m_view(new QTreeView(this))
{
    setObjectName(QStringLiteral("recoveryDialog"));
    setWindowTitle(tr("Recover documents"));
    auto *const text = new QLabel(
        tr("The program did not end well the last time. These documents have changes that were not "
           "saved:"),
        this);
    text->setWordWrap(true);
    m_view->setModel(m_model);
    m_view->setAccessibleName(tr("Documents with changes that were not saved"));
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setIconSize(RecoveryModel::pictureSize);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setTextElideMode(Qt::ElideMiddle);
    m_view->header()->setStretchLastSection(false);
    m_view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_view->header()->setSectionResizeMode(RecoveryModel::File, QHeaderView::Stretch);
    auto *const buttons = new QDialogButtonBox(this);
    m_open = buttons->addButton(tr("&Open"), QDialogButtonBox::AcceptRole);
    m_open->setObjectName(QStringLiteral("recoveryOpen"));
    m_open->setDefault(true);
    m_discard = buttons->addButton(tr("&Discard"), QDialogButtonBox::DestructiveRole);
    m_discard->setObjectName(QStringLiteral("recoveryDiscard"));
    QPushButton *const later = buttons->addButton(tr("&Later"), QDialogButtonBox::RejectRole);
    later->setObjectName(QStringLiteral("recoveryLater"));

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(m_view);
    layout->addWidget(buttons);
    resize(940, 420);

    auto *const remove = new QAction(this);
    remove->setShortcut(QKeySequence::Delete);
    addAction(remove);
    connect(remove, &QAction::triggered, this, &RecoveryDialog::discardSelected);
    connect(m_open, &QPushButton::clicked, this, &RecoveryDialog::openSelected);
    connect(m_discard, &QPushButton::clicked, this, &RecoveryDialog::discardSelected);
    connect(later, &QPushButton::clicked, this, &RecoveryDialog::reject);
    connect(m_view, &QTreeView::doubleClicked, this, &RecoveryDialog::openSelected);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RecoveryDialog::updateButtons);
    m_view->setCurrentIndex(m_model->index(0, 0));
    m_view->selectAll();
    m_view->setFocus();
}

QList<LeftCopy> RecoveryDialog::selected() const
{
    QList<LeftCopy> copies;
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    for (const QModelIndex &row : rows)
        copies.append(m_model->copyAt(row.row()));
    return copies;
}

void RecoveryDialog::updateButtons()
{
    const bool any = m_view->selectionModel()->hasSelection();
    m_open->setEnabled(any);
    m_discard->setEnabled(any);
}

void RecoveryDialog::openSelected()
{
    const QList<LeftCopy> copies = selected();
    for (const LeftCopy &copy : copies)
        Q_EMIT openRequested(copy);
}

void RecoveryDialog::discardSelected()
{
    const QList<LeftCopy> copies = selected();
    if (copies.isEmpty() ||
        QMessageBox::question(this, tr("Discard"),
                              tr("Give up the changes of %n document(s) for good?", nullptr,
                                 int(copies.size()))) != QMessageBox::Yes)
        return;
    for (const LeftCopy &copy : copies)
        Q_EMIT discardRequested(copy);
}

void RecoveryDialog::forget(const QString &copy)
{
    m_model->forget(copy);
    if (m_model->rowCount() == 0)
        accept();
}
