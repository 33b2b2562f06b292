// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/accessiblesubject.h>

#include <app/panels/accessiblesubjects.h>
#include <app/panels/subjectproxymodel.h>
#include <app/panels/subjecttree.h>

#include <QItemSelectionModel>
#include <QWindow>

AccessibleSubject::AccessibleSubject(SubjectTreeView *view, const QModelIndex &row)
    : m_view(view)
    , m_row(row)
{
}

AccessibleSubjects *AccessibleSubject::tree() const
{
    return AccessibleSubjects::of(m_view);
}

bool AccessibleSubject::isValid() const
{
    return m_view && m_row.isValid() && m_row.model() == m_view->model();
}

QWindow *AccessibleSubject::window() const
{
    return m_view ? m_view->window()->windowHandle() : nullptr;
}

QAccessibleInterface *AccessibleSubject::parent() const
{
    AccessibleSubjects *const all = isValid() ? tree() : nullptr;
    const QModelIndex above = m_row.parent();
    if (all && above.isValid())
        return all->subject(above);
    return all;
}

bool AccessibleSubject::isExpandable() const
{
    return m_row.model()->hasChildren(m_row);
}

bool AccessibleSubject::isExpanded() const
{
    return m_view->isExpanded(m_row) && isExpandable();
}

int AccessibleSubject::level() const
{
    int level = 0;
    for (QModelIndex above = m_row.parent(); above.isValid(); above = above.parent())
        ++level;
    return level;
}

int AccessibleSubject::childCount() const
{
    return isValid() && isExpanded() ? m_row.model()->rowCount(m_row) : 0;
}

QAccessibleInterface *AccessibleSubject::child(int index) const
{
    AccessibleSubjects *const all = index >= 0 && index < childCount() ? tree() : nullptr;
    return all ? all->subject(m_row.model()->index(index, 0, m_row)) : nullptr;
}

int AccessibleSubject::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *const subject = dynamic_cast<const AccessibleSubject *>(child);
    const bool isOurs = subject && subject->isValid() && subject->row().parent() == row();
    return isOurs && childCount() > 0 ? subject->row().row() : -1;
}

QAccessibleInterface *AccessibleSubject::childAt(int x, int y) const
{
    // What lies at a point of the screen is found by the tree: rows do not lie inside each other.
    Q_UNUSED(x)
    Q_UNUSED(y)
    return nullptr;
}

QString AccessibleSubject::text(QAccessible::Text kind) const
{
    if (!isValid())
        return QString();
    switch (kind) {
    case QAccessible::Name:
        return m_row.data(Qt::DisplayRole).toString();
    case QAccessible::Description:
        return description();
    case QAccessible::Value:
        return QString::number(level());
    default:
        return QString();
    }
}

QString AccessibleSubject::description() const
{
    const auto *const proxy = qobject_cast<const SubjectProxyModel *>(m_row.model());
    const QString status = proxy ? proxy->statusName(m_row) : QString();
    const QString at = tr("level %1").arg(level());
    return status.isEmpty() ? at : at + QStringLiteral(", ") + status;
}

void AccessibleSubject::setText(QAccessible::Text kind, const QString &text)
{
    Q_UNUSED(kind)
    Q_UNUSED(text)
}

QRect AccessibleSubject::rect() const
{
    if (!isValid())
        return QRect();
    const QRect shown = m_view->visualRect(m_row);
    return shown.translated(m_view->viewport()->mapToGlobal(QPoint()));
}

QAccessible::State AccessibleSubject::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const QRect shown = m_view->visualRect(m_row);
    state.selectable = true;
    state.focusable = true;
    state.selected = m_view->selectionModel()->isSelected(m_row);
    state.focused = m_view->hasFocus() && m_view->currentIndex() == m_row;
    state.expandable = isExpandable();
    state.expanded = isExpanded();
    state.collapsed = state.expandable && !state.expanded;
    state.invisible = !m_view->isVisible();
    state.offscreen = !shown.intersects(m_view->viewport()->rect());
    return state;
}

void *AccessibleSubject::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
}

QStringList AccessibleSubject::actionNames() const
{
    if (!isValid())
        return {};
    QStringList names{pressAction(), setFocusAction()};
    if (isExpandable())
        names.append(toggleAction());
    return names;
}

QString AccessibleSubject::localizedActionName(const QString &name) const
{
    if (name == toggleAction() && isValid())
        return isExpanded() ? tr("Contract") : tr("Expand");
    return name == pressAction() ? tr("Select")
                                 : QAccessibleActionInterface::localizedActionName(name);
}

void AccessibleSubject::doAction(const QString &name)
{
    if (!actionNames().contains(name))
        return;
    if (name == toggleAction()) {
        m_view->setExpanded(m_row, !isExpanded());
        return;
    }
    if (name == setFocusAction())
        m_view->setFocus(Qt::OtherFocusReason);
    m_view->setCurrentIndex(m_row);
}

QStringList AccessibleSubject::keyBindingsForAction(const QString &name) const
{
    Q_UNUSED(name)
    return {};
}
