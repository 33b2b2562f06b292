// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/keysdialog.h>

#include <app/common/actionset.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

KeysDialog::KeysDialog(const ActionSet &actions, QWidget *parent)
    : QDialog(parent)
    , m_keys(new QTreeWidget(this))
{
    setWindowTitle(tr("Keys"));
    auto *const search = new QLineEdit(this);
    search->setPlaceholderText(tr("Search"));
    search->setAccessibleName(search->placeholderText());
    search->setClearButtonEnabled(true);
    connect(search, &QLineEdit::textChanged, this, &KeysDialog::showMatches);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    m_keys->setRootIsDecorated(false);
    m_keys->setAlternatingRowColors(true);
    m_keys->setAccessibleName(windowTitle());
    m_keys->setHeaderLabels({tr("Command"), tr("Keys")});
    fill(actions);

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(search);
    layout->addWidget(m_keys);
    layout->addWidget(buttons);
    constexpr int border = 60;                      // and the scroll bar
    m_keys->header()->setStretchLastSection(false); // or it would not tell what it needs
    for (const int column : {0, 1})
        m_keys->resizeColumnToContents(column);
    resize(m_keys->header()->length() + border, 560);
    m_keys->header()->setStretchLastSection(true);
}

void KeysDialog::fill(const ActionSet &actions)
{
    const QList<QAction *> all = actions.actions();
    for (const QAction *action : all) {
        const QString keys =
            QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText);
        if (!keys.isEmpty())
            new QTreeWidgetItem(m_keys, {ActionSet::plainText(*action), keys}); // which owns it
    }
}

void KeysDialog::showMatches(const QString &text)
{
    for (int row = 0; row < m_keys->topLevelItemCount(); ++row) {
        QTreeWidgetItem *const item = m_keys->topLevelItem(row);
        item->setHidden(!item->text(0).contains(text, Qt::CaseInsensitive) &&
                        !item->text(1).contains(text, Qt::CaseInsensitive));
    }
}
