// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/menus.h>

#include <app/common/actionset.h>
#include <app/common/language.h>

#include <QAction>
#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace {

struct Bar
{
    const char *name;
    const char *title;
    const char *actions; ///< names; "|" stands for a separator; some are submenus
};

constexpr Bar menus[] = {
    {"fileMenu", QT_TRANSLATE_NOOP("Menus", "&File"),
     "new newFromTemplate newExample | open recent import url recover | save saveAs saveCopy "
     "saveAsTemplate saveAll revert | export exportAs report exportActions print printPreview "
     "printActions | "
     "close | reopen "
     "quit"},
    {"editMenu", QT_TRANSLATE_NOOP("Menus", "&Edit"),
     "undo redo | cut copy copyPicture paste delete | selectAll selectBranch selectSiblings | "
     "find filter"},
    {"subjectMenu", QT_TRANSLATE_NOOP("Menus", "&Subject"),
     "child before after parent subTask free | rename details | moveUp moveDown promote demote | "
     "mark markHere | "
     "link openLink unlink | style "
     "removeStyle"},
    {"goMenu", QT_TRANSLATE_NOOP("Menus", "&Go"),
     "goLeft goRight goUp goDown | goParent goChild goPrevious goNext | nextTab previousTab"},
    {"viewMenu", QT_TRANSLATE_NOOP("Menus", "&View"),
     "zoomin zoomout fullsize fit fitselection | rotateLeft rotateRight rotateReset | expand "
     "contract expandall contractall | asDiagram back whole visited | diagramMode taskMode | "
     "canvasStyle look page language | fullScreen focus"},
    {"helpMenu", QT_TRANSLATE_NOOP("Menus", "&Help"), "keys welcome | about aboutQt"},
};

constexpr Bar toolBars[] = {
    {"fileBar", QT_TRANSLATE_NOOP("Menus", "File"), "new open save | export print"},
    {"editBar", QT_TRANSLATE_NOOP("Menus", "Edit"), "undo redo | cut copy paste delete"},
    {"subjectBar", QT_TRANSLATE_NOOP("Menus", "Subject"),
     "child before after parent | rename link style"},
    {"viewBar", QT_TRANSLATE_NOOP("Menus", "View"),
     "expandall contractall | zoomin zoomout fullsize fit | back find"},
};

Language::Text titleOf(const Bar &bar)
{
    return [&bar] { return QCoreApplication::translate("Menus", bar.title); };
}

void fill(QWidget *bar, const char *names, const ActionSet &actions,
          const QHash<QString, QMenu *> &submenus)
{
    const QStringList list = QString::fromLatin1(names).split(QLatin1Char(' '));
    for (const QString &name : list) {
        if (name == QLatin1String("|")) {
            auto *const separator = new QAction(bar);
            separator->setSeparator(true);
            bar->addAction(separator);
        } else if (const QMenu *const submenu = submenus.value(name)) {
            bar->addAction(submenu->menuAction());
        } else {
            bar->addAction(actions.action(name));
        }
    }
}

} // namespace

namespace Menus {

void build(QMainWindow *window, const ActionSet &actions, const QHash<QString, QMenu *> &submenus)
{
    for (const Bar &bar : menus) {
        QMenu *const menu = window->menuBar()->addMenu(QString());
        Language::bind(menu, &QMenu::setTitle, titleOf(bar));
        menu->setObjectName(QLatin1String(bar.name));
        fill(menu, bar.actions, actions, submenus);
    }
    for (const Bar &bar : toolBars) {
        QToolBar *const toolBar = window->addToolBar(QString());
        Language::bind(toolBar, &QWidget::setWindowTitle, titleOf(bar));
        toolBar->setObjectName(QLatin1String(bar.name));
        toolBar->setIconSize(QSize(20, 20));
        fill(toolBar, bar.actions, actions, submenus);
    }
}

} // namespace Menus
