// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/tabcommands.h>

#include <app/common/actionset.h>
#include <app/documents/documenttabs.h>

#include <QAction>

TabCommands::TabCommands(DocumentTabs *tabs, ActionSet *actions, QObject *parent)
    : QObject(parent)
    , m_tabs(tabs)
    , m_actions(actions)
{
    actions->add(
        QStringLiteral("nextTab"), [] { return tr("Next &tab"); },
        {QKeySequence(Qt::CTRL | Qt::Key_Tab), QKeySequence(Qt::CTRL | Qt::Key_PageDown)},
        ActionSet::Scope::Window, [this] { m_tabs->go(1); });
    actions->add(
        QStringLiteral("previousTab"), [] { return tr("Previous t&ab"); },
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), QKeySequence(Qt::CTRL | Qt::Key_PageUp)},
        ActionSet::Scope::Window, [this] { m_tabs->go(-1); });
}

void TabCommands::updateActions()
{
    const bool several = m_tabs->tabs().size() > 1;
    for (const char *name : {"nextTab", "previousTab"})
        m_actions->action(QLatin1String(name))->setEnabled(several);
}
