// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

class QMenu;
class QWidget;

/** The files that were opened or saved last, kept across runs, and the menu that offers them. */
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    /** The number of files that are remembered. */
    static constexpr int limit = 9; // each has a digit for a mnemonic

    /** @p window owns the menu and this object. */
    explicit RecentFiles(QWidget *window);

    /** The menu, which is brought up to date each time it opens. */
    QMenu *menu() const { return m_menu; }

    /** The paths, the latest first. */
    QStringList files() const;
    /** Puts the file @p path in front. */
    void add(const QString &path);
    /** Says that the user wants the file @p path. */
    void choose(const QString &path) { Q_EMIT chosen(path); }
    /** Forgets the file @p path. */
    void remove(const QString &path);

Q_SIGNALS:
    /** The user wants the file @p path. */
    void chosen(const QString &path);

private:
    void fillMenu();

    QMenu *m_menu;
};
