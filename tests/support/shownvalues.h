// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QMetaProperty>
#include <QTabBar>
#include <QWidget>

namespace TestSupport {

/** The class and the name of @p object and of those above it. */
inline QString placeOf(const QObject *object)
{
    QStringList names;
    for (const QObject *each = object; each; each = each->parent()) {
        const QString name = QLatin1String(each->metaObject()->className());
        names.prepend(each->objectName().isEmpty() ? name
                                                   : name + QLatin1Char(' ') + each->objectName());
    }
    return names.join(QLatin1Char('/'));
}

/** What the properties of @p object that are texts or locales say. */
inline QStringList propertyValues(const QObject &object)
{
    QStringList values;
    for (int i = 0; i < object.metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = object.metaObject()->property(i);
        QString text;
        if (property.userType() == QMetaType::QString)
            text = property.read(&object).toString();
        else if (property.userType() == QMetaType::QLocale)
            text = property.read(&object).toLocale().name();
        if (!text.isEmpty() && qstrcmp(property.name(), "objectName") != 0)
            values.append(QLatin1String(property.name()) + QLatin1String(": ") + text);
    }
    return values;
}

/** The texts and tool tips of all items of @p model. */
inline QStringList itemValues(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList values;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex index = model.index(row, column, parent);
            for (const int role : {Qt::DisplayRole, Qt::ToolTipRole})
                values.append(QStringLiteral("item: ") + index.data(role).toString());
        }
        values += itemValues(model, model.index(row, 0, parent));
    }
    return values;
}

/** What @p object shows beside its properties. */
inline QStringList contentValues(const QObject &object)
{
    QStringList values;
    if (const auto *const bar = qobject_cast<const QTabBar *>(&object)) {
        for (int tab = 0; tab < bar->count(); ++tab)
            values += {bar->tabText(tab), bar->tabToolTip(tab), bar->accessibleTabName(tab)};
    } else if (const auto *const combo = qobject_cast<const QComboBox *>(&object)) {
        values += itemValues(*combo->model());
    } else if (const auto *const header = qobject_cast<const QHeaderView *>(&object)) {
        for (int section = 0; section < header->count(); ++section)
            values += header->model()->headerData(section, header->orientation()).toString();
    } else if (const auto *const view = qobject_cast<const QAbstractItemView *>(&object)) {
        if (view->model())
            values += itemValues(*view->model());
    }
    return values;
}

/**
 * Everything that a user reads or hears in @p window and what belongs to it, shown or not, each
 * with its place.
 */
inline QStringList shownValues(const QWidget &window)
{
    QStringList values;
    QList<const QObject *> objects{&window};
    for (const QObject *object : window.findChildren<QObject *>())
        objects.append(object);
    for (const QObject *object : objects) {
        const QString place = placeOf(object);
        for (const QString &value : propertyValues(*object) + contentValues(*object))
            values.append(place + QLatin1String(" | ") + value);
    }
    return values;
}

} // namespace TestSupport
