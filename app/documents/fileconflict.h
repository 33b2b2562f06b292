// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/files/filewatch.h>

#include <QObject>

class DocumentTab;
class MessageBar;

/** Tells the user of a tab when somebody else has changed the file of its document, and asks what
 * to do about it. */
class FileConflict : public QObject
{
    Q_OBJECT

public:
    /** Asks with @p bar. The tab is the parent. */
    FileConflict(MessageBar *bar, DocumentTab *tab);

    /** The document and its file are the same now. */
    void settle();

    /** Whether somebody else has changed the file since it was the same as the document, and nobody
     * has decided for the document. */
    bool isOpen() const;

Q_SIGNALS:
    /** The user wants the document as its file has it. */
    void reloadRequested();
    /** The user wants the document in its file. */
    void saveRequested();
    /** The user wants the document in another file. */
    void saveAsRequested();

private:
    void follow(FileWatch::State state);
    void tellOfChange();
    void tellOfLoss();
    void keep();

    MessageBar *m_bar;
    DocumentTab *m_tab;
    FileWatch m_watch;
};
