// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/accessiblesubjects.h>

#include <app/panels/accessiblesubject.h>
#include <app/panels/subjectproxymodel.h>
#include <app/panels/subjecttree.h>

#include <utility>

namespace {

QAccessibleInterface *makeAccessible(const QString &className, QObject *object)
{
    if (className != QLatin1String(SubjectTreeView::staticMetaObject.className()))
        return nullptr;
    auto *const view = qobject_cast<SubjectTreeView *>(object);
    return view ? new AccessibleSubjects(view) : nullptr; // owned by the toolkit
}

/** Takes away what the toolkit still has under @p id. */
void forget(QAccessible::Id id)
{
    if (QAccessible::accessibleInterface(id))
        QAccessible::deleteAccessibleInterface(id);
}

/** What tells rows apart: the subject that a row of the proxy stands for; only compared. */
quintptr keyOf(const QModelIndex &row)
{
    const auto *const proxy = qobject_cast<const SubjectProxyModel *>(row.model());
    return proxy ? quintptr(proxy->mapToSource(row).internalId()) : 0;
}

} // namespace

void AccessibleSubjects::install()
{
    QAccessible::installFactory(makeAccessible); // which takes the same one once
}

AccessibleSubjects *AccessibleSubjects::of(SubjectTreeView *view)
{
    return view ? dynamic_cast<AccessibleSubjects *>(QAccessible::queryAccessibleInterface(view))
                : nullptr;
}

void AccessibleSubjects::report(SubjectTreeView *view, const QModelIndex &row,
                                QAccessible::Event event)
{
    AccessibleSubjects *const all = QAccessible::isActive() && row.isValid() ? of(view) : nullptr;
    if (!all)
        return;
    QAccessibleEvent happened(all->subject(row), event);
    QAccessible::updateAccessibility(&happened);
}

AccessibleSubjects::AccessibleSubjects(SubjectTreeView *view)
    : QAccessibleWidget(view, QAccessible::Tree)
{
    m_rows.setSingleShot(true);
    QObject::connect(&m_rows, &QTimer::timeout, &m_listener, [this] { follow(); });
}

AccessibleSubjects::~AccessibleSubjects()
{
    // At the end of the program the toolkit deletes all interfaces by itself, one by one.
    if (QCoreApplication::closingDown())
        return;
    const QList<QAccessible::Id> ids = m_subjects.values();
    for (QAccessible::Id id : ids)
        forget(id);
}

SubjectTreeView *AccessibleSubjects::view() const
{
    return qobject_cast<SubjectTreeView *>(object());
}

/** Follows the rows of the view, which may have been asked for before it had any. */
void AccessibleSubjects::listen()
{
    const QAbstractItemModel *const model = view()->model();
    if (std::exchange(m_model, model) == model)
        return;
    const auto later = [this] { m_rows.start(0); };
    QObject::connect(model, &QAbstractItemModel::rowsInserted, &m_listener, later);
    QObject::connect(model, &QAbstractItemModel::rowsRemoved, &m_listener, later);
    QObject::connect(model, &QAbstractItemModel::rowsMoved, &m_listener, later);
    QObject::connect(model, &QAbstractItemModel::layoutChanged, &m_listener, later);
    QObject::connect(model, &QAbstractItemModel::modelReset, &m_listener, later);
    QObject::connect(view(), &QTreeView::expanded, &m_listener, later);
    QObject::connect(view(), &QTreeView::collapsed, &m_listener, later);
}

/** Takes the items of rows that have gone away, and tells that there are other rows now. */
void AccessibleSubjects::follow()
{
    for (auto entry = m_subjects.begin(); entry != m_subjects.end();) {
        const QAccessibleInterface *const known = QAccessible::accessibleInterface(*entry);
        if (known && known->isValid()) {
            ++entry;
            continue;
        }
        const QAccessible::Id id = *entry;
        entry = m_subjects.erase(entry);
        forget(id);
    }
    if (!view())
        return;
    QAccessibleEvent changed(view(), QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&changed);
}

AccessibleSubject *AccessibleSubjects::subject(const QModelIndex &row)
{
    if (!row.isValid() || !view())
        return nullptr;
    listen();
    const quintptr key = keyOf(row);
    const auto known = m_subjects.constFind(key);
    if (known != m_subjects.cend()) {
        auto *const found =
            static_cast<AccessibleSubject *>(QAccessible::accessibleInterface(*known));
        if (found && found->row() == row)
            return found;
        forget(*known); // of another one that was there before
    }
    auto *const made = new AccessibleSubject(view(), row); // owned by the toolkit
    m_subjects.insert(key, QAccessible::registerAccessibleInterface(made));
    return made;
}

int AccessibleSubjects::childCount() const
{
    const SubjectTreeView *const shown = view();
    return shown && shown->model() ? shown->model()->rowCount() : 0;
}

QAccessibleInterface *AccessibleSubjects::child(int index) const
{
    return index >= 0 && index < childCount()
               ? const_cast<AccessibleSubjects *>(this)->subject(view()->model()->index(index, 0))
               : nullptr;
}

int AccessibleSubjects::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *const item = dynamic_cast<const AccessibleSubject *>(child);
    return item && item->isValid() && !item->row().parent().isValid() ? item->row().row() : -1;
}

QAccessibleInterface *AccessibleSubjects::childAt(int x, int y) const
{
    const SubjectTreeView *const shown = view();
    if (!shown)
        return nullptr;
    const QPoint at = shown->viewport()->mapFromGlobal(QPoint(x, y));
    return const_cast<AccessibleSubjects *>(this)->subject(shown->indexAt(at));
}

QAccessibleInterface *AccessibleSubjects::focusChild() const
{
    const SubjectTreeView *const shown = view();
    return shown && shown->hasFocus()
               ? const_cast<AccessibleSubjects *>(this)->subject(shown->currentIndex())
               : nullptr;
}

QAccessible::State AccessibleSubjects::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.multiSelectable = true;
    return state;
}
