// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/actionset.h>

#include <app/common/themedicon.h>

#include <QAction>
#include <QRegularExpression>
#include <QWidget>

ActionSet::ActionSet(QObject *parent)
    : QObject(parent)
{
}

QAction *ActionSet::add(const QString &name, const QString &text,
                        const QList<QKeySequence> &shortcuts, Scope scope,
                        std::function<void()> run)
{
    Q_ASSERT(!m_actions.contains(name));
    auto *const action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcuts(shortcuts);
    if (scope != Scope::Window)
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QString tip = plainText(*action);
    if (!shortcuts.isEmpty() && !shortcuts.constFirst().isEmpty())
        tip +=
            QStringLiteral(" (%1)").arg(shortcuts.constFirst().toString(QKeySequence::NativeText));
    action->setToolTip(tip);
    connect(action, &QAction::triggered, this, [run = std::move(run)] { run(); });
    m_actions.insert(name, action);
    m_order.append(action);
    m_scopes.insert(action, scope);
    return action;
}

QString ActionSet::plainText(const QAction &action)
{
    // In Chinese the mnemonic is a letter of its own, in brackets behind the text.
    static const QRegularExpression mnemonicInBrackets(QStringLiteral("\\(&[A-Z0-9]\\)"));
    return action.text()
        .remove(mnemonicInBrackets)
        .remove(QLatin1Char('&'))
        .remove(QStringLiteral("…"));
}

QAction *ActionSet::action(const QString &name) const
{
    Q_ASSERT(m_actions.contains(name));
    return m_actions.value(name);
}

void ActionSet::addShortcuts(Scope scope, QWidget *widget) const
{
    for (QAction *action : m_order) {
        if (m_scopes.value(action) == scope)
            widget->addAction(action);
    }
}

void ActionSet::updateIcons(const QPalette &palette) const
{
    for (QAction *action : m_order)
        action->setIcon(ThemedIcon::icon(action->objectName(), palette));
}
