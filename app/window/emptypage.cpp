// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/emptypage.h>

#include <app/common/actionset.h>
#include <app/common/language.h>
#include <app/common/shownpath.h>
#include <app/files/recentfiles.h>

#include <QAction>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

EmptyPage::EmptyPage(const ActionSet &actions, RecentFiles *recent, QWidget *parent)
    : QWidget(parent)
    , m_recent(recent)
    , m_label(new QLabel(this))
    , m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("emptyPage"));
    auto *const title = new QLabel(this);
    Language::bind(title, &QLabel::setText, [] { return tr("No diagram is open"); });
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    title->setFont(font);
    auto *const buttons = new QVBoxLayout;
    for (const char *name : {"new", "newFromTemplate", "open", "url"}) {
        QAction *const action = actions.action(QLatin1String(name));
        auto *const button = new QPushButton(this);
        Language::bind(button, &QPushButton::setText, [action] { return action->text(); });
        button->setObjectName(QLatin1String(name) + QLatin1String("Button"));
        connect(button, &QPushButton::clicked, action, &QAction::trigger);
        buttons->addWidget(button);
    }
    auto *const hint = new QLabel(this);
    Language::bind(hint, &QLabel::setText,
                   [] { return tr("Files can also be dragged into this window."); });
    m_list->setObjectName(QStringLiteral("recentList"));
    m_label->setBuddy(m_list);
    const auto listTitle = [] { return tr("Opened lately:"); };
    Language::bind(m_label, &QLabel::setText, listTitle);
    Language::bind(m_list, &QWidget::setAccessibleName, listTitle);
    connect(m_list, &QListWidget::itemActivated, this, [this](const QListWidgetItem *item) {
        m_recent->choose(item->data(Qt::UserRole).toString());
    });

    auto *const column = new QVBoxLayout;
    column->setSpacing(10);
    column->addWidget(title);
    column->addLayout(buttons);
    column->addWidget(hint);
    column->addSpacing(10);
    column->addWidget(m_label);
    column->addWidget(m_list);
    auto *const layout = new QGridLayout(this);
    layout->addLayout(column, 1, 1);
    for (const int side : {0, 2}) {
        layout->setRowStretch(side, 1);
        layout->setColumnStretch(side, 1);
    }
    layout->setColumnStretch(1, 2);
}

void EmptyPage::showEvent(QShowEvent *event)
{
    listRecent();
    QWidget::showEvent(event);
}

void EmptyPage::listRecent()
{
    m_list->clear();
    const QStringList paths = m_recent->files();
    for (const QString &path : paths) {
        auto *const item = new QListWidgetItem(QFileInfo(path).fileName(), m_list);
        item->setToolTip(ShownPath::of(path));
        item->setData(Qt::UserRole, path);
    }
    m_label->setVisible(!paths.isEmpty());
    m_list->setVisible(!paths.isEmpty());
}
