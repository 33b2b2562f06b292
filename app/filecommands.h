// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

class ActionSet;
class DiagramSession;
class DocumentLoader;
class FishInfo;
class QMenu;
class QWidget;
class RecentFiles;

/** The commands on whole documents: new, open, import, save, close. */
class FileCommands : public QObject
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. Dialogs stand over @p window, which owns this object. */
    FileCommands(DiagramSession *session, ActionSet *actions, QWidget *window);

    /** Opens files, of this or another program, and URLs; when there are none, the documents of the
     * last time or the template. */
    void open(const QStringList &sources);

    /** Offers to save each modified document; false when the user wants to go on working. */
    bool closeAll();

    /** The menu of the files that were opened last. */
    QMenu *recentMenu() const;

    /** Enables the actions as the shown document allows. */
    void updateActions();

Q_SIGNALS:
    /** Something for the status bar. */
    void message(const QString &text);

private:
    void addActions(ActionSet *actions);
    void showLoaded(const QString &source, FishInfo *document);
    void reportFailure(const QString &source, const QString &reason);
    void newDocument();
    void newFromBuiltInTemplate();
    void newFromTemplate(const QString &startFolder);
    void showFailures();
    void openFiles();
    void importFiles();
    void openChosen(const QString &title, const QString &filter);
    void openUrl();
    void offerAutosave(const QString &path, FishInfo *document);
    bool save(FishInfo *document);
    bool saveAs(FishInfo *document);
    bool writeTo(FishInfo *document, const QString &path);
    void saveAll();
    void closeDocument();
    bool mayClose(FishInfo *document);

    DiagramSession *m_session;
    ActionSet *m_actions;
    QWidget *m_window;
    DocumentLoader *m_loader;
    RecentFiles *m_recent;
    QStringList m_failures; ///< what could not be opened and was not shown in a box yet
};
