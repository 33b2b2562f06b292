// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/menukeys.h>

#include <QCoreApplication>
#include <QEvent>
#include <QMenu>
#include <QMenuBar>

MenuKeys::MenuKeys(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool MenuKeys::eventFilter(QObject *watched, QEvent *event)
{
    // A menu hands what leads to the next one on to its bar, where the question comes again.
    if (event->type() != QEvent::ShortcutOverride ||
        !(qobject_cast<QMenu *>(watched) || qobject_cast<QMenuBar *>(watched)))
        return QObject::eventFilter(watched, event);
    event->accept(); // the key comes again, as one for the menu
    return true;
}
