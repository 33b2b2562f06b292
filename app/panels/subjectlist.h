// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QSet>
#include <QTreeWidget>
#include <QVector>

class DiagramSession;
class MeetingReport;
class TreeItem;

/**
 * Some subjects of the document that is shown, as rows, perhaps below groups. Going to a row
 * selects its subject in the drawing. Lists anew after changes, while it can be seen, and only when
 * that makes a difference: what is current, folded and scrolled to stays.
 */
class SubjectList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SubjectList(QWidget *parent = nullptr);

    /** Lists subjects of what @p session shows. */
    void setSession(DiagramSession *session);

    /** Lists anew. */
    void refresh();

    /** What the list shows, or would if it were in sight, as a page with a heading, in HTML. Empty
     * where there is no document. */
    QString page() const;

protected:
    /** What stands in a row. */
    struct Entry
    {
        const TreeItem *subject; ///< only compared once it is listed
        QString group;           ///< the row above it; empty for none
        QStringList cells;
        QVector<QVariant> values; ///< of the cells, for whoever edits or paints them
        bool isMarked = false;    ///< shown as urgent

        bool operator==(const Entry &other) const;
    };
    static constexpr int valueRole = Qt::UserRole + 1; ///< of a cell

    /** The rows of @p report, in their order; those of a group need not follow each other. */
    virtual QVector<Entry> entries(const MeetingReport &report) const = 0;

    DiagramSession *session() const;
    /** The subject in the row of @p index; invalid when it is gone or the row is a group. */
    QModelIndex subjectAt(const QModelIndex &index) const;
    void showEvent(QShowEvent *event) override;

private:
    const TreeItem *head() const;
    void list(const QVector<Entry> &entries);
    QTreeWidgetItem *rowFor(const Entry &entry, QTreeWidgetItem *group);
    QSet<QString> foldedGroups() const;
    void selectCurrent();

    QPointer<DiagramSession> m_session;
    QVector<Entry> m_entries;
    bool m_isListing = false;
};
