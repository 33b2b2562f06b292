// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/closequestion.h>

#include <app/common/shownpath.h>
#include <app/documents/documenttab.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

CloseQuestion::CloseQuestion(const QList<QPointer<DocumentTab>> &tabs, QWidget *parent)
    : QDialog(parent)
    , m_tabs(tabs)
    , m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("closeQuestion"));
    setWindowTitle(tr("Close"));
    auto *const text = new QLabel(
        tr("%n document(s) have changes that were not saved. Save those that are checked?", nullptr,
           int(tabs.size())),
        this);
    text->setWordWrap(true);
    text->setBuddy(m_list);
    m_list->setAccessibleName(tr("Documents with changes that were not saved"));
    for (const QPointer<DocumentTab> &tab : tabs) {
        auto *const item = new QListWidgetItem(tab->name(), m_list);
        item->setToolTip(ShownPath::of(tab->path()));
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
    m_list->setCurrentRow(0);

    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton *const save = buttons->addButton(tr("&Save checked"), QDialogButtonBox::AcceptRole);
    save->setObjectName(QStringLiteral("closeSave"));
    save->setDefault(true);
    QPushButton *const none =
        buttons->addButton(tr("Close &without saving"), QDialogButtonBox::DestructiveRole);
    none->setObjectName(QStringLiteral("closeWithoutSaving"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(none, &QPushButton::clicked, this, [this] {
        m_savesNone = true;
        accept();
    });
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
}

QList<QPointer<DocumentTab>> CloseQuestion::toSave() const
{
    QList<QPointer<DocumentTab>> chosen;
    for (int row = 0; row < m_tabs.size() && !m_savesNone; ++row) {
        if (m_list->item(row)->checkState() == Qt::Checked)
            chosen.append(m_tabs.at(row));
    }
    return chosen;
}
