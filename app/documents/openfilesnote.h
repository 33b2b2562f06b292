// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

class DocumentTabs;

/** Notes which files are open, for the next start, also for the case that this run does not end
 * well. */
class OpenFilesNote : public QObject
{
    Q_OBJECT

public:
    explicit OpenFilesNote(DocumentTabs *tabs, QObject *parent = nullptr);

    /** Notes them now, and whenever update() finds others: not before the files of the last run are
     * known. */
    void begin();
    /** Notes them when there are others than at the last time, or another one is shown. */
    void update();
    /** Notes them for the last time: the tabs are about to go. */
    void end();

private:
    QStringList paths() const;
    QStringList state() const;
    void note();

    DocumentTabs *m_tabs;
    QStringList m_noted; ///< the open files, and that of the shown document
    bool m_isNoting = false;
};
