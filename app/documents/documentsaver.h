// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class DocumentTab;
class FishInfo;
class RecentFiles;
class QWidget;

/** Writes documents to files, with the questions that this takes. */
class DocumentSaver : public QObject
{
    Q_OBJECT

public:
    /** What is saved is added to @p recent. Questions are asked over @p window, which owns this. */
    DocumentSaver(RecentFiles *recent, QWidget *window);

    /** Writes the document to its file, or to one that the user chooses while it has none. True
     * when it was written. */
    bool save(DocumentTab *tab);
    /** Writes the document to a file that the user chooses, which is its file from then on. */
    bool saveAs(DocumentTab *tab);
    /** Writes the document to a file that the user chooses; the document stays that of its file,
     * and as modified as it is. */
    bool saveCopy(DocumentTab *tab);

    /** Asks the document whether it may go: unmodified, saved, or given up by the user. */
    bool mayClose(DocumentTab *tab);

    /** The file dialogs' filter for diagrams. */
    static QString documentFilter();

Q_SIGNALS:
    /** Something for the status bar. */
    void message(const QString &text);

private:
    QString chosenFile(DocumentTab *tab, const QString &title) const;
    bool mayOverwrite(DocumentTab *tab);
    static bool saved(FishInfo &document, const QString &path);
    bool write(DocumentTab *tab, const QString &path);
    bool writeTo(DocumentTab *tab, const QString &path);

    RecentFiles *m_recent;
    QWidget *m_window;
};
