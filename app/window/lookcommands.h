// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/common/language.h>
#include <app/diagram/diagramview.h>
#include <app/editing/diagramcommands.h>

#include <fishbone/undo/undocommand.h>

#include <QHash>
#include <QPointer>

#include <functional>

class DocumentLook;
class QAction;
class QActionGroup;
class QMenu;
class QWidget;

/** The commands on how a diagram is drawn: in which look, arranged for what, in which colours. What
 * they choose is kept with the document and can be undone. */
class LookCommands : public DiagramCommands
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. The menus stand in @p window, which owns this object. */
    LookCommands(DiagramSession *session, ActionSet *actions, QWidget *window);

    /** From now on the commands are about what @p look shows. */
    void setLook(DocumentLook *look);

    /** Checks what is chosen, and enables what the look knows. */
    void updateActions() override;

    /** The submenus by the names that Menus knows them by. */
    QHash<QString, QMenu *> menus() const { return m_menus; }

Q_SIGNALS:
    /** Something worth a line in the status bar has happened. */
    void message(const QString &text);

private:
    /** What an entry does to the view. */
    using Change = std::function<void(DiagramView &)>;
    /** Whether an entry is what the view has. */
    using Test = std::function<bool(const DiagramView &)>;

    QMenu *addMenu(const char *name, const char *title);
    void addLooks();
    void addPages();
    void addLines(QMenu *menu);
    void addPalettes(QMenu *menu);
    void addSwitches(QMenu *menu);
    void takeOffOwn();
    QAction *add(QMenu *menu, const char *name, const Language::Text &text, const Change &change,
                 const Test &test);
    void arrange(DiagramView &view, const QString &page) const;

    QWidget *m_window;
    QPointer<DocumentLook> m_look;
    QHash<QString, QMenu *> m_menus;
    QHash<QAction *, Test> m_tests;
    QList<QAction *> m_looks;
    QAction *m_plain = nullptr; ///< takes own colours and styles off
};
