// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusVirtualObject>
#include <QPointer>

/**
 * Tells assistive technology on the accessibility bus that the items of trees are items of trees.
 * The toolkit's bridge tells their role as that of a table's cell, as which they are read out
 * without their level and without whether they are expanded.
 *
 * Stands before the bridge on the bus, answers what role such an item has, and hands all else on.
 */
class TreeItemRole : public QDBusVirtualObject
{
    Q_OBJECT

public:
    /** Waits until assistive technology comes, if it ever does, and stands before the bridge then.
     */
    static void install();

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    class Arrival;

    explicit TreeItemRole(QDBusVirtualObject *bridge);

    static void standBefore();

    QPointer<QDBusVirtualObject> m_bridge;
};
