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

QAction *ActionSet::add(const QString &name, const Language::Text &text,
                        const QList<QKeySequence> &shortcuts, Scope scope,
                        std::function<void()> run)
{
    Q_ASSERT(!m_actions.contains(name));
    auto *const action = new QAction(this);
    action->setObjectName(name);
    action->setShortcuts(shortcuts);
    if (scope != Scope::Window)
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    Language::bind(action, [action, text] {
        action->setText(text());
        action->setToolTip(toolTip(*action));
    });
    connect(action, &QAction::triggered, this, [run = std::move(run)] { run(); });
    m_actions.insert(name, action);
    m_order.append(action);
    m_scopes.insert(action, scope);
    return action;
}

void ActionSet::setShortcuts(const QString &name, const QList<QKeySequence> &shortcuts)
{
    QAction *const changed = action(name);
    changed->setShortcuts(shortcuts);
    changed->setToolTip(toolTip(*changed));
}

/** The plain text and the first key. */
QString ActionSet::toolTip(const QAction &action)
{
    const QString key = action.shortcut().toString(QKeySequence::NativeText);
    return key.isEmpty() ? plainText(action)
                         : QStringLiteral("%1 (%2)").arg(plainText(action), key);
}

QString ActionSet::plainText(const QAction &action)
{
    return plainText(action.text());
}

QString ActionSet::plainText(const QString &text)
{
    // In Chinese and Arabic the mnemonic is a letter of its own, in brackets behind the text.
    static const QRegularExpression mnemonicInBrackets(QStringLiteral("\\s*\\(&[\\p{L}\\p{N}]\\)"));
    return QString(text)
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
