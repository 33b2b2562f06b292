// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/common/language.h>

#include <QHash>
#include <QKeySequence>
#include <QList>
#include <QObject>

#include <functional>

class QAction;
class QPalette;
class QWidget;

/**
 * The program's actions by name. The name is also the action's object name and that of its icon.
 *
 * The shortcuts of an action that works on what is selected count only in the widgets that show the
 * selection, so that they stay free for typing elsewhere.
 */
class ActionSet : public QObject
{
    Q_OBJECT

public:
    /** Where the shortcuts of an action count. */
    enum class Scope {
        Window,    ///< everywhere in the window
        Selection, ///< in the widgets that show the selection
        Drawing,   ///< in the drawing alone: the keys mean something else in a list
    };

    explicit ActionSet(QObject *parent = nullptr);

    /** Makes an action, owned by the set. The menu key stands in @p text behind an "&". */
    QAction *add(const QString &name, const Language::Text &text,
                 const QList<QKeySequence> &shortcuts, Scope scope, std::function<void()> run);

    /** Gives the action of that name, which must exist, other keys. */
    void setShortcuts(const QString &name, const QList<QKeySequence> &shortcuts);

    /** The action of that name, which must exist. */
    QAction *action(const QString &name) const;

    /** All actions in the order in which they were added. */
    QList<QAction *> actions() const { return m_order; }

    /** The text of @p action without the mark of the menu key and without dots behind it. */
    static QString plainText(const QAction &action);
    /** @p text likewise. */
    static QString plainText(const QString &text);

    /** Makes the shortcuts of the scope @p scope count in @p widget and below it. */
    void addShortcuts(Scope scope, QWidget *widget) const;

    /** Draws the icons in the colours of @p palette. */
    void updateIcons(const QPalette &palette) const;

private:
    static QString toolTip(const QAction &action);

    QHash<QString, QAction *> m_actions;
    QList<QAction *> m_order;
    QHash<const QAction *, Scope> m_scopes;
};
