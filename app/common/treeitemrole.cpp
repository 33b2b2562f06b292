// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/treeitemrole.h>

#include <QAccessible>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QTimer>

namespace {

// What the bridge calls its connection, and where the objects of a program are on the bus.
QString bridgeConnection()
{
    return QStringLiteral("a11y");
}

QString objectsPath()
{
    return QStringLiteral("/org/a11y/atspi/accessible");
}

constexpr uint treeItemRole = 91; // ATSPI_ROLE_TREE_ITEM

bool isTreeItem(const QString &path)
{
    bool isNumber = false;
    const uint id = path.section(QLatin1Char('/'), -1).toUInt(&isNumber);
    QAccessibleInterface *const asked =
        isNumber ? QAccessible::accessibleInterface(QAccessible::Id(id)) : nullptr;
    // What is in a column of several is a cell, to the bridge and to whoever reads it out.
    return asked && asked->isValid() && asked->role() == QAccessible::TreeItem &&
           !asked->tableCellInterface();
}

} // namespace

/** Hears of assistive technology. */
class TreeItemRole::Arrival : public QAccessible::ActivationObserver
{
public:
    Arrival() { QAccessible::installActivationObserver(this); }
    ~Arrival() override { QAccessible::removeActivationObserver(this); }
    Q_DISABLE_COPY(Arrival)

    void accessibilityActiveChanged(bool active) override
    {
        if (active) // The bridge goes to the bus when it has told of that.
            QTimer::singleShot(0, &m_later, [] { standBefore(); });
    }

private:
    QObject m_later;
};

void TreeItemRole::install()
{
    static Arrival arrival;
    if (QAccessible::isActive())
        arrival.accessibilityActiveChanged(true);
}

TreeItemRole::TreeItemRole(QDBusVirtualObject *bridge)
    : QDBusVirtualObject(bridge) // and gone with it
    , m_bridge(bridge)
{
}

void TreeItemRole::standBefore()
{
    QDBusConnection bus(bridgeConnection());
    auto *const bridge = qobject_cast<QDBusVirtualObject *>(bus.objectRegisteredAt(objectsPath()));
    if (!bridge || qobject_cast<TreeItemRole *>(bridge))
        return;
    bus.unregisterObject(objectsPath());
    bus.registerVirtualObject(objectsPath(), new TreeItemRole(bridge), QDBusConnection::SubPath);
}

QString TreeItemRole::introspect(const QString &path) const
{
    return m_bridge ? m_bridge->introspect(path) : QString();
}

bool TreeItemRole::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    if (message.member() == QLatin1String("GetRole") && isTreeItem(message.path()))
        return connection.send(message.createReply(QVariant::fromValue(treeItemRole)));
    return m_bridge && m_bridge->handleMessage(message, connection);
}
