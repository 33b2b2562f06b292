// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/windowlayout.h>

#include <utility>

#include <QDockWidget>
#include <QKeyEvent>
#include <QLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>

namespace {

constexpr QSize usualSize(1280, 800);
constexpr QSize smallSize(1150, 720); ///< in what is narrower or lower panels step aside

QString keyOf(const QWidget &window, const char *name)
{
    const QSize screen = window.screen()->size();
    return QStringLiteral("windows/%1x%2/%3")
        .arg(screen.width())
        .arg(screen.height())
        .arg(QLatin1String(name));
}

/** What was kept for the screen of @p window, or else for the last one, whatever its size. */
QByteArray keptFor(const QWidget &window, const char *name)
{
    const QSettings settings;
    return settings.value(keyOf(window, name), settings.value(QLatin1String(name))).toByteArray();
}

void keep(const QWidget &window, const char *name, const QByteArray &value)
{
    QSettings settings;
    settings.setValue(keyOf(window, name), value);
    settings.setValue(QLatin1String(name), value);
}

} // namespace

WindowLayout::WindowLayout(QMainWindow *window, const QList<QDockWidget *> &docks)
    : QObject(window)
    , m_window(window)
    , m_docks(docks)
{
    m_window->installEventFilter(this);
    for (QDockWidget *dock : docks)
        dock->installEventFilter(this);
}

double WindowLayout::shareOf(const QWidget &widget)
{
    const QSizeF all = widget.window()->size();
    const QSizeF own = widget.size();
    return all.isEmpty() ? 0 : own.width() * own.height() / (all.width() * all.height());
}

bool WindowLayout::hasRoom() const
{
    return m_drawing && shareOf(*m_drawing) >= drawingShare;
}

void WindowLayout::setDrawing(const QWidget *drawing)
{
    m_drawing = drawing;
    scheduleYield();
}

bool WindowLayout::isSmall() const
{
    return m_window->width() < smallSize.width() || m_window->height() < smallSize.height();
}

void WindowLayout::restore()
{
    const QSize room = m_window->screen()->availableSize();
    m_window->resize(usualSize.boundedTo(room));
    m_window->restoreGeometry(keptFor(*m_window, "geometry"));
    // A window may have been kept on a larger screen.
    m_window->resize(m_window->size().boundedTo(room));
    m_window->restoreState(keptFor(*m_window, "layout"));
}

void WindowLayout::save()
{
    setFocused(false);
    const QByteArray geometry = m_window->saveGeometry();
    showYielded();
    keep(*m_window, "geometry", geometry);
    keep(*m_window, "layout", m_window->saveState());
}

void WindowLayout::setFocused(bool focused)
{
    if (focused == isFocused())
        return;
    const QScopedValueRollback<bool> ours(m_isYielding, true);
    if (focused) {
        m_beforeFocus = m_window->saveState();
        const QList<QToolBar *> bars = m_window->findChildren<QToolBar *>();
        for (QToolBar *bar : bars)
            bar->hide();
        for (QDockWidget *dock : qAsConst(m_docks))
            dock->hide();
    } else {
        m_window->restoreState(m_beforeFocus);
        m_beforeFocus.clear();
    }
    const QList<QTabBar *> tabs = m_window->centralWidget()->findChildren<QTabBar *>();
    for (QTabBar *bar : tabs)
        bar->setVisible(!focused);
    m_window->menuBar()->setVisible(!focused);
    m_window->statusBar()->setVisible(!focused);
    Q_EMIT focusChanged(focused);
    scheduleYield();
}

bool WindowLayout::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window) {
        if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
            scheduleYield();
        // What has a use for the key took it before it came here.
        if (event->type() == QEvent::KeyPress && isFocused() &&
            static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            setFocused(false);
            return true;
        }
    } else if (!m_isYielding && m_window->isVisible()) {
        auto *const dock = static_cast<QDockWidget *>(watched);
        if (event->type() == QEvent::ShowToParent) {
            m_yielded.removeOne(dock);
            if (isSmall() && !m_opened.contains(dock)) {
                m_opened.append(dock);
                QMetaObject::invokeMethod(
                    dock, [this, dock] { widen(dock); }, Qt::QueuedConnection);
            }
        } else if (event->type() == QEvent::HideToParent) {
            m_opened.removeOne(dock);
        }
    }
    return QObject::eventFilter(watched, event);
}

void WindowLayout::widen(QDockWidget *dock)
{
    const int wanted = dock->widget()->sizeHint().width();
    const bool isBeside =
        m_window->dockWidgetArea(dock) & (Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    if (isBeside && !dock->isFloating() && dock->isVisible() && dock->width() < wanted)
        m_window->resizeDocks({dock}, {wanted}, Qt::Horizontal);
}

/** Once the window has given everything its place. */
void WindowLayout::scheduleYield()
{
    if (m_isScheduled)
        return;
    m_isScheduled = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isScheduled = false;
            yield();
        },
        Qt::QueuedConnection);
}

void WindowLayout::yield()
{
    if (isFocused() || !m_window->isVisible())
        return;
    showYielded();
    if (!isSmall())
        return;
    const QScopedValueRollback<bool> ours(m_isYielding, true);
    for (QDockWidget *dock : qAsConst(m_docks)) {
        if (hasRoom())
            return;
        if (dock->isHidden() || dock->isFloating() || m_opened.contains(dock))
            continue;
        dock->hide();
        m_yielded.append(dock);
        m_window->layout()->activate();
    }
}

void WindowLayout::showYielded()
{
    const QScopedValueRollback<bool> ours(m_isYielding, true);
    const QList<QDockWidget *> yielded = std::exchange(m_yielded, {});
    for (QDockWidget *dock : yielded)
        dock->show();
    if (!yielded.isEmpty())
        m_window->layout()->activate();
}
