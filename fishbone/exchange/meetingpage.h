// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/meetingreport.h>

/** The text of a MeetingReport, for browsers and as Markdown. */
class MeetingPage
{
public:
    MeetingPage(const TreeItem &head, const QVector<MeetingReport::Cause> &causes,
                const QVector<MeetingReport::Action> &actions);

    QString html(const QString &picture) const;
    QString markdown(const QString &pictureName) const;
    /** The actions alone, for spreadsheets, with @p separator between the cells. */
    QByteArray actionsCsv(QChar separator) const;
    /** The actions alone, with the title of the diagram above them. */
    QString actionsMarkdown() const;

private:
    /** A table with a heading above it; without rows the remark stands in its place. */
    struct Table
    {
        QString heading;
        QStringList columns;
        QVector<QStringList> rows;
        QString remark;
        int level = 2; ///< of the heading
    };

    /** How a kind of page writes texts that come from a diagram. */
    struct Markup
    {
        QString (*text)(const QString &);
        QString (*link)(const QString &text, const QString &url);
        QString (*strong)(const QString &text); ///< of a text with markup
    };

    QVector<Table> tables(const Markup &markup) const;
    QVector<Table> actionsTables(const Markup &markup) const;
    static QString inMarkdown(const QVector<Table> &tables);
    Table causesTable(const Markup &markup) const;
    Table actionsTable(const QString &person, const Markup &markup) const;
    Table legend() const;
    QStringList people() const;
    QString bar(int votes) const;

    const TreeItem &m_head;
    const QVector<MeetingReport::Cause> &m_causes;
    const QVector<MeetingReport::Action> &m_actions;
};
