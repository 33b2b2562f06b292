// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/accessiblepages.h>

#include <QStackedWidget>

namespace {

QAccessibleInterface *makeAccessible(const QString &className, QObject *object)
{
    if (className != QLatin1String(QStackedWidget::staticMetaObject.className()))
        return nullptr;
    auto *const pages = qobject_cast<QStackedWidget *>(object);
    return pages ? new AccessiblePages(pages) : nullptr; // owned by the toolkit
}

} // namespace

void AccessiblePages::install()
{
    QAccessible::installFactory(makeAccessible); // which takes the same one once
}

AccessiblePages::AccessiblePages(QStackedWidget *pages)
    : QAccessibleWidget(pages, QAccessible::LayeredPane)
{
    QObject::connect(pages, &QStackedWidget::currentChanged, &m_listener, [pages] {
        QAccessibleEvent event(pages, QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&event);
    });
}

QWidget *AccessiblePages::shown() const
{
    const auto *const pages = qobject_cast<const QStackedWidget *>(object());
    return pages ? pages->currentWidget() : nullptr;
}

int AccessiblePages::childCount() const
{
    return shown() ? 1 : 0;
}

QAccessibleInterface *AccessiblePages::child(int index) const
{
    return index == 0 ? QAccessible::queryAccessibleInterface(shown()) : nullptr;
}

int AccessiblePages::indexOfChild(const QAccessibleInterface *child) const
{
    return child && child->object() && child->object() == shown() ? 0 : -1;
}
