// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QModelIndex>
#include <QObject>
#include <QTimer>

class AccessibleSubject;
class SubjectTreeView;

/**
 * The tree of subjects as assistive technology sees it: a tree whose items are below each other as
 * its rows are, collapsed ones with nothing below, and without the columns and the heading that are
 * not shown, of which the toolkit tells.
 *
 * Made by the toolkit when somebody asks for the view, and gone with it.
 */
class AccessibleSubjects : public QAccessibleWidget
{
    Q_DISABLE_COPY(AccessibleSubjects)

public:
    /** Has every tree of subjects be seen so. */
    static void install();
    /** The one of @p view; null when there is none. */
    static AccessibleSubjects *of(SubjectTreeView *view);
    /** Tells that something has happened to @p row of @p view, if anybody listens. */
    static void report(SubjectTreeView *view, const QModelIndex &row, QAccessible::Event event);

    explicit AccessibleSubjects(SubjectTreeView *view);

    /** The item of @p row, which is made when there is none; null for an invalid row. */
    AccessibleSubject *subject(const QModelIndex &row);
    /** The number of items that have been made and not been taken away. */
    int subjectCount() const { return int(m_subjects.size()); }

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    QAccessible::State state() const override;

protected:
    ~AccessibleSubjects() override;

private:
    SubjectTreeView *view() const;
    void listen();
    void follow();

    QHash<quintptr, QAccessible::Id> m_subjects; ///< by what their rows stand for in the proxy
    const QAbstractItemModel *m_model = nullptr; ///< that is followed; only compared
    QObject m_listener;                          ///< ends the connections with this object
    QTimer m_rows;                               ///< runs out when changed rows have come to rest
};
