// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

class ActionSet;
class CanvasTheme;
class DiagramSession;
class DocumentLoader;
class FishInfo;
class QWidget;

/** The commands on whole documents: new, open, save, close, export, print. */
class FileCommands : public QObject
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. Dialogs stand over @p window, which owns this object. */
    FileCommands(DiagramSession *session, CanvasTheme *theme, ActionSet *actions, QWidget *window);

    /** Opens files and URLs; the template when there are none. */
    void open(const QStringList &sources);

    /** Offers to save each modified document; false when the user wants to go on working. */
    bool closeAll();

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
    void openFiles();
    void openUrl();
    void offerAutosave(const QString &path, FishInfo *document);
    bool save(FishInfo *document);
    bool saveAs(FishInfo *document);
    bool writeTo(FishInfo *document, const QString &path);
    void saveAll();
    void closeDocument();
    bool mayClose(FishInfo *document);
    void exportPicture();
    void print();
    QString startFolder() const;

    DiagramSession *m_session;
    CanvasTheme *m_theme;
    ActionSet *m_actions;
    QWidget *m_window;
    DocumentLoader *m_loader;
};
