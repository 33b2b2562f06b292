// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/windowdocks.h>

#include <app/common/language.h>
#include <app/common/themedicon.h>
#include <app/diagram/diagramsession.h>
#include <app/documents/documenttab.h>
#include <app/panels/actionspanel.h>
#include <app/panels/detailspanel.h>
#include <app/panels/historypanel.h>
#include <app/panels/minimap.h>
#include <app/panels/subjecttree.h>
#include <app/window/windowlayout.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>

#include <QAbstractButton>
#include <QDockWidget>
#include <QGuiApplication>
#include <QMainWindow>
#include <QStackedWidget>

#include <memory>

namespace {
void dressButton(const QDockWidget &dock, const char *name, const char *icon, const QString &text,
                 const QString &description)
{
    auto *const button = dock.findChild<QAbstractButton *>(QLatin1String(name));
    if (!button)
        return;
    button->setIcon(ThemedIcon::icon(QLatin1String(icon), dock.palette()));
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setAccessibleDescription(description);
}

/** Names the buttons in the title of a dock, as the toolkit does once and for all, and gives them
 * icons that can be seen on a dark desktop. */
void dressTitle(const QDockWidget &dock)
{
    dressButton(dock, "qt_dockwidget_floatbutton", "floatpanel", WindowDocks::tr("Float"),
                WindowDocks::tr("Takes the panel out of the window, or back into it"));
    dressButton(dock, "qt_dockwidget_closebutton", "closepanel", WindowDocks::tr("Close"),
                WindowDocks::tr("Closes the panel"));
}

/** Takes what stands on the left of @p window to the right, and the other way round. What floats,
 * and what is stacked, stays so. */
void mirror(QMainWindow &window)
{
    QList<QDockWidget *> moved;
    QList<int> widths;
    QList<QDockWidget *> stackedOn;
    const QList<QDockWidget *> docks = window.findChildren<QDockWidget *>();
    for (QDockWidget *dock : docks) {
        const Qt::DockWidgetArea area = window.dockWidgetArea(dock);
        const bool isBeside = area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
        if (!isBeside || dock->isFloating())
            continue;
        moved.append(dock);
        widths.append(dock->width());
        stackedOn.append(window.tabifiedDockWidgets(dock).value(0));
    }
    for (int i = 0; i < int(moved.size()); ++i) {
        const bool isLeft = window.dockWidgetArea(moved.at(i)) == Qt::LeftDockWidgetArea;
        window.addDockWidget(isLeft ? Qt::RightDockWidgetArea : Qt::LeftDockWidgetArea,
                             moved.at(i));
        if (moved.mid(0, i).contains(stackedOn.at(i)))
            window.tabifyDockWidget(stackedOn.at(i), moved.at(i));
    }
    window.resizeDocks(moved, widths, Qt::Horizontal);
}

/** Has the panels of @p window stand where its language reads from and to. */
void followDirection(QMainWindow *window)
{
    const auto isMirrored = std::make_shared<bool>(false);
    Language::bind(window, [window, isMirrored] {
        if (*isMirrored == QGuiApplication::isRightToLeft())
            return;
        *isMirrored = !*isMirrored;
        mirror(*window);
    });
}
} // namespace

WindowDocks::WindowDocks(QMainWindow *window, QAction *exportActions, QAction *printActions)
    : m_window(window)
    , m_trees(new QStackedWidget(window))
    , m_details(new QStackedWidget(window))
    , m_histories(new QStackedWidget(window))
    , m_overview(new Minimap(window))
    , m_actions(new ActionsPanel(exportActions, printActions, window))
{
    QDockWidget *const trees =
        add("documentsDock", QT_TR_NOOP("Subjects"), Qt::LeftDockWidgetArea, m_trees);
    m_detailsDock = add("detailsDock", QT_TR_NOOP("Details"), Qt::RightDockWidgetArea, m_details);
    QDockWidget *const histories =
        add("historyDock", QT_TR_NOOP("History"), Qt::RightDockWidgetArea, m_histories);
    QDockWidget *const overview =
        add("overviewDock", QT_TR_NOOP("Overview"), Qt::LeftDockWidgetArea, m_overview);
    QDockWidget *const actions =
        add("actionsDock", QT_TR_NOOP("Actions"), Qt::BottomDockWidgetArea, m_actions);
    actions->hide(); // until somebody wants it
    window->resizeDocks({trees, m_detailsDock}, {240, 300}, Qt::Horizontal);
    window->resizeDocks({m_detailsDock, histories}, {500, 160}, Qt::Vertical);
    window->resizeDocks({trees, overview}, {500, 160}, Qt::Vertical);
    followDirection(window);
    m_layout = new WindowLayout(window, {actions, histories, m_detailsDock, overview, trees});
    Language::bind(m_detailsDock, [this] { followTexts(); });
}

/** Has the details keep their whole width in another language, once all of them have their texts.
 */
void WindowDocks::followTexts()
{
    if (m_window->isVisible())
        QMetaObject::invokeMethod(
            m_layout, [this] { m_layout->widen(m_detailsDock); }, Qt::QueuedConnection);
}

QDockWidget *WindowDocks::add(const char *name, const char *title, Qt::DockWidgetArea area,
                              QWidget *contents)
{
    auto *const dock = new QDockWidget(m_window);
    Language::bind(dock, [dock, title] {
        dock->setWindowTitle(tr(title));
        dressTitle(*dock);
    });
    QObject::connect(dock, &QDockWidget::topLevelChanged, dock, [dock] { dressTitle(*dock); });
    dock->setObjectName(QLatin1String(name));
    dock->setWidget(contents);
    m_window->addDockWidget(area, dock);
    return dock;
}

void WindowDocks::takeIn(const DocumentTab &tab)
{
    m_trees->addWidget(tab.tree());
    m_details->addWidget(tab.details());
    m_histories->addWidget(tab.history());
}

void WindowDocks::show(const DocumentTab &tab)
{
    m_trees->setCurrentWidget(tab.tree());
    m_details->setCurrentWidget(tab.details());
    m_histories->setCurrentWidget(tab.history());
    m_overview->setSession(tab.session());
    m_actions->setSession(tab.session());
    m_layout->setDrawing(tab.session()->document() ? tab.editor()->view() : nullptr);
}

void WindowDocks::showDetails()
{
    m_detailsDock->show();
    m_detailsDock->raise();
}

void WindowDocks::dressTitles() const
{
    const QList<QDockWidget *> docks = m_window->findChildren<QDockWidget *>();
    for (const QDockWidget *dock : docks)
        dressTitle(*dock);
}

QString WindowDocks::actionsPage() const
{
    return m_actions->page();
}
