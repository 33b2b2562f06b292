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

namespace {

/** A button that does what @p action does, when that can be done. */
QToolButton *buttonFor(QAction *action, QWidget *parent)
{
    auto *const button = new QToolButton(parent);
    QObject::connect(button, &QToolButton::clicked, action, &QAction::trigger);
    const auto follow = [button, action] { button->setEnabled(action->isEnabled()); };
    QObject::connect(action, &QAction::changed, button, follow);
    follow();
    return button;
}

} // namespace

ActionsPanel::ActionsPanel(QAction *exportAction, QAction *printAction, QWidget *parent)
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
    addTab(actionsPage(exportAction, printAction), QString());
    addTab(m_ranked, QString());
    Language::bind(this, [this] { showTexts(); });
    Language::bind(this, [this] { m_groups->setMinimumWidth(m_groups->sizeHint().width()); });
}

QWidget *ActionsPanel::actionsPage(QAction *exportAction, QAction *printAction)
{
    auto *const page = new QWidget(this);
    QToolButton *const toFile = buttonFor(exportAction, page);
    toFile->setObjectName(QStringLiteral("actionsToFile"));
    Language::bind(toFile, &QToolButton::setText, [] { return tr("Write to a file…"); });
    QToolButton *const toPrinter = buttonFor(printAction, page);
    toPrinter->setObjectName(QStringLiteral("actionsToPrinter"));
    Language::bind(toPrinter, &QToolButton::setText, [] { return tr("Print…"); });
    auto *const row = new QHBoxLayout;
    row->addWidget(m_groups);
    row->addStretch();
    row->addWidget(toFile);
    row->addWidget(toPrinter);
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

QString ActionsPanel::page() const
{
    return m_actions->page();
}
