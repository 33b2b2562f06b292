// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

class DocumentLoader;
class DocumentTabs;
class QWidget;

/** Asks the user what to load. */
class SourceDialogs : public QObject
{
    Q_OBJECT

public:
    /** What is chosen is loaded by @p loader. The dialogs stand over @p window, which owns this
     * object, and begin in the folder of the current one of @p tabs. */
    SourceDialogs(DocumentLoader *loader, DocumentTabs *tabs, QWidget *window);

    /** Opens files, of this or another program. */
    void openFiles();
    /** Imports files of other programs; the user looks first at what the columns of a table stand
     * for. */
    void importFiles();
    /** Opens what is at a URL. */
    void openUrl();

Q_SIGNALS:
    /** Something for the status bar. */
    void message(const QString &text);

private:
    void importFile(const QString &path);
    QStringList chosenFiles(const QString &title, const QString &filter) const;

    DocumentLoader *m_loader;
    DocumentTabs *m_tabs;
    QWidget *m_window;
};
