// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/editor/graphicsview.h>

#include <QAccessibleActionInterface>
#include <QCoreApplication>
#include <QPointer>

class AccessibleDiagram;

/**
 * A bone as assistive technology sees it: an entry of a tree, below the entry of its parent bone
 * or, for the head, below the AccessibleDiagram, which makes these objects when they are asked for.
 *
 * It may be asked after its bone has died: then it is invalid and has nothing to tell.
 */
class AccessibleBone : public QAccessibleInterface, public QAccessibleActionInterface
{
    Q_DECLARE_TR_FUNCTIONS(AccessibleBone)
    Q_DISABLE_COPY(AccessibleBone)

public:
    AccessibleBone(GraphicsView *view, SpearItem *spear);

    /** The bone; null when it has died. */
    SpearItem *spear() const { return m_spear.get(); }
    /** What has changed since the last call, of what was told before. */
    QAccessible::State takeChanges();

    bool isValid() const override;
    QObject *object() const override { return nullptr; }
    QWindow *window() const override;
    QAccessibleInterface *parent() const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override { return nullptr; }

    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::TreeItem; }
    QAccessible::State state() const override;

    void *interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    QString localizedActionName(const QString &name) const override;
    QString localizedActionDescription(const QString &name) const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

protected:
    ~AccessibleBone() override;

private:
    AccessibleDiagram *diagram() const;
    bool isExpandable() const;
    bool isExpanded() const;
    QString description() const;
    void select();
    void toggle();

    QPointer<GraphicsView> m_view;
    SpearPointer m_spear;
    bool m_wasExpanded = false; ///< when it was told last
};
