// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/busycursor.h>

#include <fishbone/model/subjectwalk.h>

#include <QApplication>
#include <QCursor>
#include <QMainWindow>
#include <QStatusBar>

namespace {

constexpr int manySubjects = 5000; ///< below that a layout takes some tenths of a second

/** Whether there is much below @p root; looks at no more than it takes to know. */
bool isLarge(const TreeItem *root)
{
    int count = 0;
    return !visitSubjects(root, [&count](const TreeItem *subject) {
        count += subject->childCount();
        return count <= manySubjects;
    });
}

/** Any that is shown, or null. */
QMainWindow *shownMainWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *const main = window->isVisible() ? qobject_cast<QMainWindow *>(window) : nullptr;
        if (main)
            return main;
    }
    return nullptr;
}

/** That of the window that the user works in, or null. */
QStatusBar *activeStatusBar()
{
    QWidget *widget = QApplication::activeWindow();
    if (!widget) // as where a dialog has just closed, until the next event
        widget = shownMainWindow();
    while (widget && !qobject_cast<QMainWindow *>(widget))
        widget = widget->parentWidget();
    return widget ? static_cast<QMainWindow *>(widget)->statusBar() : nullptr;
}

} // namespace

BusyCursor::BusyCursor()
{
    show();
}

BusyCursor::BusyCursor(const TreeItem *root)
{
    if (isLarge(root))
        show();
}

void BusyCursor::show()
{
    m_isShown = true;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_statusBar = activeStatusBar();
    if (!m_statusBar)
        return;
    m_statusBar->showMessage(tr("Working…"));
    m_statusBar->repaint(); // there will be no event until the work is done
}

BusyCursor::~BusyCursor()
{
    if (!m_isShown)
        return;
    QApplication::restoreOverrideCursor();
    if (m_statusBar && m_statusBar->currentMessage() == tr("Working…"))
        m_statusBar->clearMessage();
}
