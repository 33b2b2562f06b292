// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <QVector>

#include <vector>

class TreeItem;

/** Counts what is in a diagram, and finds what is off in it. */
class DocumentReport
{
    Q_DECLARE_TR_FUNCTIONS(DocumentReport)

public:
    /** Something that is off. */
    struct Finding
    {
        QString place;  ///< of the subject, "2.1" below the second main bone; empty for the head
        QString title;  ///< of the subject
        QString reason; ///< for the user, a clause

        /** All of it in one line, for the user. */
        QString text() const;
    };

    explicit DocumentReport(const TreeItem &head);

    /** The title of the head. */
    const QString &title() const { return m_title; }

    int subjects() const { return m_subjects; }
    /** The levels of subjects, the head's included. */
    int levels() const { return m_levels; }
    int mainBones() const { return m_mainBones; }
    /** Subjects with a link. */
    int links() const { return m_links; }
    /** Subjects with a style of their own. */
    int styles() const { return m_styles; }
    const QVector<Finding> &findings() const { return m_findings; }

    /** All of it in lines, for the user. */
    QString text() const;

private:
    void visit(const TreeItem &subject, const TreeItem *parent);
    void checkIdentity(const TreeItem &subject, const TreeItem *parent);
    void checkTask(const TreeItem &subject);
    void find(const TreeItem &subject, const QString &what);
    QString place() const;

    int m_subjects = 0;
    int m_levels = 0;
    int m_mainBones = 0;
    int m_links = 0;
    int m_styles = 0;
    QString m_title;
    QVector<Finding> m_findings;
    QSet<QString> m_uuids;
    std::vector<int> m_path; ///< the numbers of the subject being visited and of all above it
};
