// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeySequence>
#include <QObject>
#include <QStringList>

class ActionSet;
class DocumentCloser;
class DocumentLoader;
class DocumentSaver;
class DocumentTab;
class DocumentTabs;
class FishInfo;
class FishModel;
class OpenFilesNote;
class QWidget;
class RecentFiles;
class SourceDialogs;

/** The commands on whole documents: new, open, import, save, close. */
class FileCommands : public QObject
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. Dialogs stand over @p window, which owns this object. */
    FileCommands(DocumentTabs *tabs, RecentFiles *recent, ActionSet *actions, QWidget *window);

    /** Opens files, of this or another program, and URLs; when there are none, the documents of the
     * last time or the template. */
    void open(const QStringList &sources);

    /** What loads the documents. */
    DocumentLoader *loader() const { return m_loader; }

    /** Makes a document with a head alone, and selects that. */
    void newDocument();

    /** Offers to save each modified document; false when the user wants to go on working. */
    bool mayCloseAll();

    /** Leaves nothing behind that only a run that did not end well leaves, and remembers what was
     * open. */
    void end();

    /** Enables the actions as the open documents allow. */
    void updateActions();

Q_SIGNALS:
    /** Something for the status bar. */
    void message(const QString &text);

private:
    void addOpenActions();
    void addSaveActions();
    void addCloseActions();
    void add(const char *name, const char *text, const QKeySequence &shortcut,
             void (FileCommands::*run)());
    void showLoaded(const QString &source, FishInfo *document);
    void reportFailure(const QString &source, const QString &reason);
    void showFailures();
    void endCancelled(const QString &source);
    void showSomething();
    FishInfo *arrival(int error, const QString &path);
    void newFromBuiltInTemplate();
    void newWelcome();
    void answerConflicts(DocumentTab *tab);
    int loadAgain(const FishInfo *document, const QString &path);
    void revert(DocumentTab *tab);
    void closeCurrent();
    void endLoading();

    DocumentTabs *m_tabs;
    RecentFiles *m_recent;
    ActionSet *m_actions;
    QWidget *m_window;
    FishModel *m_arrivals; ///< documents are loaded into it, and leave it for a tab
    DocumentLoader *m_loader;
    DocumentSaver *m_saver;
    DocumentCloser *m_closer;
    SourceDialogs *m_sources;
    OpenFilesNote *m_remembered;
    QStringList m_failures; ///< what could not be opened and was not shown in a box yet
    QString m_shownAtLast;  ///< the file to be shown when all that was asked for is loaded
};
