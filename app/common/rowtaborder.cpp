// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/rowtaborder.h>

#include <QFormLayout>
#include <QWidget>

namespace {

/** What Tab leads to of @p field: itself, or its parts. */
QVector<QWidget *> stopsIn(QWidget *field)
{
    if (field->focusPolicy() & Qt::TabFocus)
        return {field};
    QVector<QWidget *> stops;
    const QList<QWidget *> parts =
        field->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *part : parts) {
        if (part->focusPolicy() & Qt::TabFocus)
            stops.append(part);
    }
    return stops;
}

/** The same of a field of a form, which may be several beside each other. */
QVector<QWidget *> stopsIn(QLayoutItem &item)
{
    QVector<QWidget *> stops;
    if (item.widget())
        return stopsIn(item.widget());
    const QLayout *const beside = item.layout();
    for (int i = 0; beside && i < beside->count(); ++i) {
        if (QWidget *const field = beside->itemAt(i)->widget())
            stops += stopsIn(field);
    }
    return stops;
}

} // namespace

void RowTabOrder::apply(const QVector<const QFormLayout *> &forms)
{
    QVector<QWidget *> stops;
    for (const QFormLayout *form : forms) {
        for (int row = 0; row < form->rowCount(); ++row) {
            if (QLayoutItem *const field = form->itemAt(row, QFormLayout::FieldRole))
                stops += stopsIn(*field);
        }
    }
    for (int i = 1; i < int(stops.size()); ++i)
        QWidget::setTabOrder(stops.at(i - 1), stops.at(i));
}
