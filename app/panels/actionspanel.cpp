// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/actionspanel.h>

#include <app/common/language.h>
#include <app/common/tabbuttons.h>
#include <app/panels/actionlist.h>
#include <app/panels/rankedlist.h>

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

ActionsPanel::ActionsPanel(QAction *exportAction, QWidget *parent)
    : QTabWidget(parent)
    , m_actions(new ActionList(this))
    , m_ranked(new RankedList(this))
    , m_groups(new QComboBox(this))
{
    setDocumentMode(true);
    m_groups->setObjectName(QStringLiteral("actionGroups"));
    for (const ActionList::Groups groups :
         {ActionList::Groups::None, ActionList::Groups::Person, ActionList::Groups::Status})
        m_groups->addItem(QString(), int(groups));
    m_groups->setCurrentIndex(int(ActionList::Groups::Person));
    m_groups->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(m_groups, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int groups) { m_actions->setGroups(ActionList::Groups(groups)); });
    addTab(actionsPage(exportAction), QString());
    addTab(m_ranked, QString());
    Language::bind(this, [this] { showTexts(); });
    Language::bind(this, [this] { m_groups->setMinimumWidth(m_groups->sizeHint().width()); });
}

QWidget *ActionsPanel::actionsPage(QAction *exportAction)
{
    auto *const page = new QWidget(this);
    auto *const button = new QToolButton(page);
    button->setObjectName(QStringLiteral("actionsToFile"));
    connect(button, &QToolButton::clicked, exportAction, &QAction::trigger);
    const auto follow = [button, exportAction] { button->setEnabled(exportAction->isEnabled()); };
    connect(exportAction, &QAction::changed, button, follow);
    follow();
    Language::bind(button, &QToolButton::setText, [] { return tr("Write to a file…"); });
    auto *const row = new QHBoxLayout;
    row->addWidget(m_groups);
    row->addStretch();
    row->addWidget(button);
    auto *const layout = new QVBoxLayout(page);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(row);
    layout->addWidget(m_actions);
    return page;
}

void ActionsPanel::showTexts()
{
    TabButtons::name(*this);
    setTabText(0, tr("Actions"));
    setTabText(1, tr("Ranked causes"));
    m_groups->setAccessibleName(tr("Grouped by"));
    const QStringList names{tr("In one list"), tr("By person"), tr("By status")};
    for (int row = 0; row < int(names.size()); ++row)
        m_groups->setItemText(row, names.at(row));
}

void ActionsPanel::setSession(DiagramSession *session)
{
    m_actions->setSession(session);
    m_ranked->setSession(session);
}
