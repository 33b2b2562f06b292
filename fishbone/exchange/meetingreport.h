// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <fishbone/drawing/diagramlook.h>
#include <fishbone/fishbone_export.h>
#include <fishbone/model/subjectmarks.h>

#include <QChar>
#include <QCoreApplication>
#include <QDate>
#include <QString>
#include <QStringList>
#include <QVector>

class DiagramPicture;
class TreeItem;

/**
 * What is sent round after a meeting about a diagram: its picture, the causes in the order of what
 * was found out about them, what is to be done by whom, and a legend.
 *
 * Written as a page for the browser, which needs no other file, as PDF, or as Markdown with the
 * picture in an SVG file beside it. Texts and dates are in the language of the moment. Needs a
 * QGuiApplication.
 */
class FISHBONE_EXPORT MeetingReport
{
    Q_DECLARE_TR_FUNCTIONS(MeetingReport)

public:
    /** A subject that was voted for, or about which something was found out. */
    struct Cause
    {
        const TreeItem *subject; ///< never null
        QStringList above;       ///< the titles above it, the main bone's first
        Verdict verdict;         ///< what was found out
        int votes;               ///< how many hold it for the likeliest
    };

    /** A subject that somebody is to deal with, or that has an end. */
    struct Action
    {
        const TreeItem *subject; ///< never null
        QString person;          ///< empty for nobody
        QDate end;               ///< when it is to be done; invalid for no date
        bool isOverdue;          ///< whether that day is over, and it is not done
    };

    /** About the diagram below @p head, which must not be null and must live as long as this, on
     * the day @p today. Near linear in the number of subjects, without recursion. */
    explicit MeetingReport(const TreeItem *head, const QDate &today = QDate::currentDate());

    /** How the picture is drawn; it always has a legend. */
    void setLook(const DiagramLook::Options &options);

    /** What stands between the cells of the table for spreadsheets, a comma unless it is set:
     * spreadsheets of languages that write 0,5 want a semicolon. */
    void setCellSeparator(QChar separator) { m_cellSeparator = separator; }

    /** Root causes, then what is confirmed, being checked, open and ruled out; among those what has
     * more votes comes first. */
    const QVector<Cause> &causes() const { return m_causes; }
    /** By person as the default locale sorts names, nobody last, and for each by date. */
    const QVector<Action> &actions() const { return m_actions; }

    /** Whether the planned end of @p subject is before @p today, and it is not done. */
    static bool isOverdue(const TreeItem &subject, const QDate &today);

    /** Whether the ending of @p fileName is one that can be written: .html, .pdf or .md. */
    static bool canWrite(const QString &fileName);

    /** Writes the file @p fileName, which is replaced whole or not at all. False, with a reason in
     * @p error, when that fails. */
    bool write(const QString &fileName, QString *error = nullptr) const;

    /** Whether writeActions() can write a file with the ending of @p fileName: .csv or .md. */
    static bool canWriteActions(const QString &fileName);
    /** Writes the actions alone, as a table for spreadsheets or as Markdown, as write() does. */
    bool writeActions(const QString &fileName, QString *error = nullptr) const;

    /** The page for the browser, with the SVG @p picture in it. */
    QString html(const QString &picture) const;
    /** The report as Markdown, with a link to the picture @p pictureName. */
    QString markdown(const QString &pictureName) const;

private:
    std::unique_ptr<DiagramPicture> arranged() const;
    QByteArray picture() const;
    bool writePdf(const QString &fileName, QString *error) const;

    const TreeItem *m_head;
    const QDate m_today;
    DiagramLook::Options m_look;
    QChar m_cellSeparator = QLatin1Char(',');
    QVector<Cause> m_causes;
    QVector<Action> m_actions;
};
