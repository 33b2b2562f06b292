// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessibleActionInterface>
#include <QCoreApplication>
#include <QPersistentModelIndex>
#include <QPointer>

class AccessibleSubjects;
class SubjectTreeView;

/**
 * A row of the tree of subjects as assistive technology sees it: an item of a tree, below that of
 * its parent's row, with its status in words, where the tree shows an icon. Made by
 * AccessibleSubjects when somebody asks for it; invalid when its row has gone.
 */
class AccessibleSubject : public QAccessibleInterface, public QAccessibleActionInterface
{
    Q_DECLARE_TR_FUNCTIONS(AccessibleSubject)
    Q_DISABLE_COPY(AccessibleSubject)

public:
    AccessibleSubject(SubjectTreeView *view, const QModelIndex &row);

    /** Where it stands now; invalid when it has gone. */
    QModelIndex row() const { return m_row; }

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
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

protected:
    ~AccessibleSubject() override = default;

private:
    AccessibleSubjects *tree() const;
    bool isExpanded() const;
    bool isExpandable() const;
    int level() const;
    QString description() const;

    QPointer<SubjectTreeView> m_view;
    QPersistentModelIndex m_row;
};
