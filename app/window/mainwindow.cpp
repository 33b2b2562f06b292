// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/mainwindow.h>

#include <app/common/accessiblepages.h>
#include <app/common/actionset.h>
#include <app/common/canvastheme.h>
#include <app/common/language.h>
#include <app/common/linkopener.h>
#include <app/common/themedicon.h>
#include <app/diagram/diagramsession.h>
#include <app/documents/documenttab.h>
#include <app/documents/documenttabs.h>
#include <app/documents/filecommands.h>
#include <app/documents/recoverycommands.h>
#include <app/documents/reportcommands.h>
#include <app/documents/tabcommands.h>
#include <app/documents/templatecommands.h>
#include <app/editing/bonemenuentries.h>
#include <app/editing/editcommands.h>
#include <app/editing/markcommands.h>
#include <app/editing/mousedrags.h>
#include <app/editing/movecommands.h>
#include <app/editing/typedtitle.h>
#include <app/editing/walkcommands.h>
#include <app/export/exportcommands.h>
#include <app/files/filedrop.h>
#include <app/files/loadprogress.h>
#include <app/files/recentfiles.h>
#include <app/panels/actionspanel.h>
#include <app/panels/detailspanel.h>
#include <app/panels/diagramcounts.h>
#include <app/panels/filterbar.h>
#include <app/panels/historypanel.h>
#include <app/panels/minimap.h>
#include <app/panels/subjecttree.h>
#include <app/recovery/autosavestatus.h>
#include <app/window/emptypage.h>
#include <app/window/helpcommands.h>
#include <app/window/languagemenu.h>
#include <app/window/lookcommands.h>
#include <app/window/menukeys.h>
#include <app/window/menus.h>
#include <app/window/viewcommands.h>
#include <app/window/windowlayout.h>
#include <app/window/zoomcontrols.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QUrl>

namespace {

/** Names the buttons in the title of a dock, as the toolkit does once and for all, and gives them
 * icons that can be seen on a dark desktop. */
void dressTitleButtons(const QDockWidget &dock)
{
    const auto dress = [&dock](const char *button, const char *icon, const QString &text,
                               const QString &description) {
        auto *const found = dock.findChild<QAbstractButton *>(QLatin1String(button));
        if (!found)
            return;
        found->setIcon(ThemedIcon::icon(QLatin1String(icon), dock.palette()));
        found->setToolTip(text);
        found->setAccessibleName(text);
        found->setAccessibleDescription(description);
    };
    dress("qt_dockwidget_floatbutton", "floatpanel", MainWindow::tr("Float"),
          MainWindow::tr("Takes the panel out of the window, or back into it"));
    dress("qt_dockwidget_closebutton", "closepanel", MainWindow::tr("Close"),
          MainWindow::tr("Closes the panel"));
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_theme(new CanvasTheme(this))
    , m_actions(new ActionSet(this))
    , m_recent(new RecentFiles(this))
    , m_tabs(new DocumentTabs(m_theme, this))
    , m_drops(new FileDrop(this))
{
    AccessiblePages::install();
    setWindowIcon(QIcon(QStringLiteral(":/app/icon.svg")));
    setCentralWidget(m_tabs);
    m_theme->follow(palette());
    addCommands();
    addDocks();
    addBars();
    connectCommands();
    m_tabs->setEmptyPage(new EmptyPage(*m_actions, m_recent, m_tabs));
    takeIn(m_tabs->current());
    showTab(m_tabs->current());
    connect(m_tabs, &DocumentTabs::added, this, &MainWindow::takeIn);
    connect(m_tabs, &DocumentTabs::currentChanged, this, &MainWindow::showTab);
    m_layout->restore();
    Language::bind(this, [this] { showTexts(); });
}

MainWindow::~MainWindow()
{
    // The tabs' panels stand in the docks, and the commands listen to what is in the tabs.
    m_tabs->disconnect(this);
    qDeleteAll(m_commands);
    delete m_files;
    delete m_recovery;
    delete m_reports;
    delete m_templates;
    delete m_tabs;
}

FishModel *MainWindow::model() const
{
    return m_tabs->current()->model();
}

FishEditor *MainWindow::editor() const
{
    return m_tabs->current()->editor();
}

DiagramSession *MainWindow::session() const
{
    return m_tabs->current()->session();
}

SubjectTree *MainWindow::tree() const
{
    return m_tabs->current()->tree();
}

void MainWindow::addCommands()
{
    m_controls = new ZoomControls(editor(), this);
    m_autosave = new AutosaveStatus(this);
    m_counts = new DiagramCounts(this);
    statusBar()->addPermanentWidget(m_counts);
    statusBar()->addPermanentWidget(m_autosave);
    statusBar()->addPermanentWidget(m_controls);
    m_files = new FileCommands(m_tabs, m_recent, m_actions, this);
    statusBar()->insertPermanentWidget(0, new LoadProgress(m_files->loader(), this));
    m_recovery = new RecoveryCommands(m_tabs, m_actions, this);
    m_reports = new ReportCommands(m_tabs, m_actions, this);
    m_templates = new TemplateCommands(m_tabs, m_actions, this);
    m_tabCommands = new TabCommands(m_tabs, m_actions, this);
    m_exports = new ExportCommands(session(), m_theme, m_actions, this);
    m_edits = new EditCommands(session(), m_actions, this);
    m_views = new ViewCommands(session(), m_theme, m_controls, m_actions, this);
    m_looks = new LookCommands(session(), m_actions, this);
    m_looks->setLook(m_tabs->current()->look());
    m_marks = new MarkCommands(session(), m_actions, this);
    m_commands = {m_exports,
                  m_edits,
                  m_marks,
                  m_views,
                  m_looks,
                  new MoveCommands(session(), m_actions, this),
                  new WalkCommands(session(), m_actions, this)};
    new HelpCommands(m_actions, this); // which owns it
    m_actions->add(
        QStringLiteral("details"), [] { return tr("&Details"); }, {Qt::Key_F4},
        ActionSet::Scope::Selection, [this] { showDetails(); });
    m_actions->add(
        QStringLiteral("filter"), [] { return tr("Filt&er…"); },
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_L)}, ActionSet::Scope::Window,
        [this] { m_tabs->current()->filterBar()->open(); });
}

QDockWidget *MainWindow::addDock(const char *name, const char *title, Qt::DockWidgetArea area,
                                 QWidget *contents)
{
    auto *const dock = new QDockWidget(this);
    Language::bind(dock, [dock, title] {
        dock->setWindowTitle(tr(title));
        dressTitleButtons(*dock);
    });
    connect(dock, &QDockWidget::topLevelChanged, dock, [dock] { dressTitleButtons(*dock); });
    dock->setObjectName(QLatin1String(name));
    dock->setWidget(contents);
    addDockWidget(area, dock);
    return dock;
}

void MainWindow::addDocks()
{
    // Three of them show what belongs to the current tab.
    for (QStackedWidget **contents : {&m_trees, &m_details, &m_histories})
        *contents = new QStackedWidget(this);
    m_overview = new Minimap(this);
    m_actionsPanel = new ActionsPanel(m_actions->action(QStringLiteral("exportActions")), this);
    QDockWidget *const trees =
        addDock("documentsDock", QT_TR_NOOP("Subjects"), Qt::LeftDockWidgetArea, m_trees);
    QDockWidget *const details =
        addDock("detailsDock", QT_TR_NOOP("Details"), Qt::RightDockWidgetArea, m_details);
    QDockWidget *const histories =
        addDock("historyDock", QT_TR_NOOP("History"), Qt::RightDockWidgetArea, m_histories);
    QDockWidget *const overview =
        addDock("overviewDock", QT_TR_NOOP("Overview"), Qt::LeftDockWidgetArea, m_overview);
    QDockWidget *const actions =
        addDock("actionsDock", QT_TR_NOOP("Actions"), Qt::BottomDockWidgetArea, m_actionsPanel);
    actions->hide(); // until somebody wants it
    resizeDocks({trees, details}, {240, 300}, Qt::Horizontal);
    resizeDocks({details, histories}, {500, 160}, Qt::Vertical);
    resizeDocks({trees, overview}, {500, 160}, Qt::Vertical);
    m_layout = new WindowLayout(this, {actions, histories, details, overview, trees});
    m_views->offerFocus(m_layout);
}

void MainWindow::addBars()
{
    auto *const visited = new QMenu(this);
    Language::bind(visited, &QMenu::setTitle, [] { return tr("Shown be&fore"); });
    m_views->listVisited(visited);
    new MenuKeys(this); // which owns it
    QHash<QString, QMenu *> submenus = m_looks->menus();
    submenus.insert(QStringLiteral("recent"), m_recent->menu());
    submenus.insert(QStringLiteral("mark"), m_marks->menu());
    submenus.insert(QStringLiteral("visited"), visited);
    submenus.insert(QStringLiteral("language"), new LanguageMenu(this));
    Menus::build(this, *m_actions, submenus);
    m_actions->addShortcuts(ActionSet::Scope::Window, this); // also without the menus
    QMenu *const panels = createPopupMenu();
    Language::bind(panels, &QMenu::setTitle, [] { return tr("&Panels"); });
    menuBar()->insertMenu(findChild<QMenu *>(QStringLiteral("helpMenu"))->menuAction(), panels);
    m_actions->updateIcons(palette());
    const QList<QDockWidget *> docks = findChildren<QDockWidget *>();
    for (const QDockWidget *dock : docks)
        dressTitleButtons(*dock);
}

void MainWindow::connectCommands()
{
    connect(m_theme, &CanvasTheme::message, this, &MainWindow::showMessage);
    connect(m_files, &FileCommands::message, this, &MainWindow::showMessage);
    connect(m_recovery, &RecoveryCommands::message, this, &MainWindow::showMessage);
    connect(m_reports, &ReportCommands::message, this, &MainWindow::showMessage);
    connect(m_templates, &TemplateCommands::message, this, &MainWindow::showMessage);
    connect(m_exports, &ExportCommands::message, this, &MainWindow::showMessage);
    connect(m_edits, &EditCommands::message, this, &MainWindow::showMessage);
    connect(m_marks, &MarkCommands::message, this, &MainWindow::showMessage);
    connect(m_looks, &LookCommands::message, this, &MainWindow::showMessage);
    connect(m_edits, &EditCommands::newDiagramWanted, this, &MainWindow::startDiagram);
    auto *const links = new LinkOpener(this);
    connect(links, &LinkOpener::failed, this, [this](const QUrl &url) {
        showMessage(tr("Nothing opens %1").arg(url.toDisplayString()));
    });
    m_drops->watch(this);
    // Queued, since the program from which the file comes waits for the end of the drop.
    connect(m_drops, &FileDrop::dropped, this, &MainWindow::open, Qt::QueuedConnection);
}

/** Gives @p tab its place in the window. */
void MainWindow::takeIn(DocumentTab *tab)
{
    m_trees->addWidget(tab->tree());
    m_details->addWidget(tab->details());
    m_histories->addWidget(tab->history());
    m_actions->addShortcuts(ActionSet::Scope::Selection, tab->editor());
    m_actions->addShortcuts(ActionSet::Scope::Selection, tab->tree()->view());
    m_actions->addShortcuts(ActionSet::Scope::Drawing, tab->editor());
    m_drops->watch(tab->editor()->view()->viewport());
    connect(tab->session(), &DiagramSession::stateChanged, this, [this, tab] {
        if (tab == m_tabs->current())
            updateState();
    });
    connectGestures(tab);
}

void MainWindow::connectGestures(DocumentTab *tab)
{
    FishEditor *const editor = tab->editor();
    offerActionsInBoneMenu(*editor, *m_actions, m_marks->menu());
    offerActionsInTreeMenu(*tab->tree()->view(), *editor, *m_actions, m_marks->menu());
    new MouseDrags(
        editor, [this] { m_actions->action(QStringLiteral("markHere"))->trigger(); },
        tab); // which owns it
    auto *const typing = new TypedTitle(editor, tab);
    connect(typing, &TypedTitle::typed, this, [this, editor](const QString &text) {
        m_edits->rename(editor->firstSelectedSpearIndex(), text);
    });
    // Of what the editor's own menu tells nothing comes: the program's entries stand in it instead.
    connect(editor, &FishEditor::editTaskDetail, this, [this, tab](const QModelIndex &index) {
        tab->details()->showSubject(index);
        showDetails();
    });
    connect(editor, &FishEditor::changeTaskParent, this,
            [this, tab](const QStringList &children, const QString &parentId) {
                const QModelIndex index = tab->model()->modelIndexByUuid(parentId);
                const TreeItem *const task = tab->model()->getTreeItem(index);
                showMessage(tr("%n task(s) moved to %1", nullptr, children.size())
                                .arg(task ? task->title() : tr("the top")));
            });
    connect(tab->tree()->view(), &QTreeView::doubleClicked, this, &MainWindow::showDetails);
}

void MainWindow::showTab(DocumentTab *tab)
{
    const bool wasInTabs = m_tabs->isAncestorOf(QApplication::focusWidget());
    m_trees->setCurrentWidget(tab->tree());
    m_details->setCurrentWidget(tab->details());
    m_histories->setCurrentWidget(tab->history());
    m_controls->setEditor(tab->editor());
    m_overview->setSession(tab->session());
    m_actionsPanel->setSession(tab->session());
    m_layout->setDrawing(tab->editor()->view());
    m_counts->setSession(tab->session());
    m_autosave->setCopy(tab->recovery());
    m_looks->setLook(tab->look());
    for (DiagramCommands *commands : qAsConst(m_commands))
        commands->setSession(tab->session());
    if (tab->document() && (wasInTabs || !QApplication::focusWidget()))
        tab->editor()->view()->setFocus();
    updateState();
}

void MainWindow::showMessage(const QString &text)
{
    statusBar()->showMessage(text, 10000);
}

void MainWindow::open(const QStringList &sources)
{
    m_files->open(sources);
}

void MainWindow::offerRecovery()
{
    m_recovery->offer();
}

/** Begins another diagram with its title. */
void MainWindow::startDiagram()
{
    m_files->newDocument();
    m_edits->rename(editor()->rootIndex());
}

/** Shows the details of the first selected subject of the current tab. */
void MainWindow::showDetails()
{
    DetailsPanel *const details = m_tabs->current()->details();
    details->showSubject(editor()->firstSelectedSpearIndex());
    auto *const dock = findChild<QDockWidget *>(QStringLiteral("detailsDock"));
    dock->show();
    dock->raise();
    details->focusTitle();
}

/** The texts that tell of the state. A message tells of what was, in the language of then. */
void MainWindow::showTexts()
{
    statusBar()->clearMessage();
    updateState();
}

void MainWindow::updateState()
{
    const DocumentTab *const tab = m_tabs->current();
    const FishInfo *const document = tab->document();
    setWindowTitle(document ? tr("%1[*] – Fishbone").arg(tab->name()) : tr("Fishbone"));
    setWindowModified(document && document->modified());
    m_actions->action(QStringLiteral("filter"))->setEnabled(document);
    m_files->updateActions();
    m_reports->updateActions();
    m_templates->updateActions();
    m_tabCommands->updateActions();
    for (DiagramCommands *commands : qAsConst(m_commands))
        commands->updateActions();
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    m_theme->follow(palette());
    m_actions->updateIcons(palette());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_files->mayCloseAll()) {
        event->ignore();
        return;
    }
    m_files->end();
    m_layout->save();
    event->accept();
}
