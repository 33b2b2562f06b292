// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class DocumentSaver;
class DocumentTab;
class DocumentTabs;
class QWidget;

/** Closes documents, and asks the user first about those that have something to save. */
class DocumentCloser : public QObject
{
    Q_OBJECT

public:
    /** Saves with @p saver. Questions are asked over @p window, which owns this object. */
    DocumentCloser(DocumentTabs *tabs, DocumentSaver *saver, QWidget *window);

    /** Saves all open documents that have something to save, up to the first one that cannot be. */
    void saveAll();

    /** Closes @p tabs up to the first one that the user wants to keep. */
    void close(const QList<DocumentTab *> &tabs);

    /** Offers to save each modified document; false when the user wants to go on working. */
    bool mayCloseAll();

private:
    bool mayClose(DocumentTab *tab);
    QList<QPointer<DocumentTab>> openAmong(const QList<DocumentTab *> &tabs) const;
    QList<QPointer<DocumentTab>> changedAmong(const QList<QPointer<DocumentTab>> &tabs) const;
    bool mayCloseMany(const QList<QPointer<DocumentTab>> &tabs);

    DocumentTabs *m_tabs;
    DocumentSaver *m_saver;
    QWidget *m_window;
};
