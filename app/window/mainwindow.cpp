// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/mainwindow.h>

#include <app/common/accessiblepages.h>
#include <app/common/actionset.h>
#include <app/common/canvastheme.h>
#include <app/common/contraststyle.h>
#include <app/common/language.h>
#include <app/common/linkopener.h>
#include <app/diagram/diagramsession.h>
#include <app/documents/documenttab.h>
#include <app/documents/documenttabs.h>
#include <app/documents/filecommands.h>
#include <app/documents/recoverycommands.h>
#include <app/documents/reportcommands.h>
#include <app/editing/bonemenuentries.h>
#include <app/editing/editcommands.h>
#include <app/editing/markcommands.h>
#include <app/editing/mousedrags.h>
#include <app/editing/typedtitle.h>
#include <app/files/filedrop.h>
#include <app/files/loadprogress.h>
#include <app/files/recentfiles.h>
#include <app/panels/detailspanel.h>
#include <app/panels/diagramcounts.h>
#include <app/panels/filterbar.h>
#include <app/panels/subjecttree.h>
#include <app/recovery/autosavestatus.h>
#include <app/window/emptypage.h>
#include <app/window/languagemenu.h>
#include <app/window/lookcommands.h>
#include <app/window/menukeys.h>
#include <app/window/menus.h>
#include <app/window/viewcommands.h>
#include <app/window/windowcommands.h>
#include <app/window/windowdocks.h>
#include <app/window/windowlayout.h>
#include <app/window/zoomcontrols.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QUrl>

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_theme(new CanvasTheme(this))
    , m_actions(new ActionSet(this))
    , m_recent(new RecentFiles(this))
    , m_tabs(new DocumentTabs(m_theme, this))
    , m_drops(new FileDrop(this))
{
    AccessiblePages::install();
    ContrastStyle::install();
    setWindowIcon(QIcon(QStringLiteral(":/app/icon.svg")));
    setCentralWidget(m_tabs);
    m_theme->follow(palette());
    addStatus();
    addCommands();
    addBars();
    connectCommands();
    m_tabs->setEmptyPage(new EmptyPage(*m_actions, m_recent, m_tabs));
    takeIn(m_tabs->current());
    showTab(m_tabs->current());
    connect(m_tabs, &DocumentTabs::added, this, &MainWindow::takeIn);
    connect(m_tabs, &DocumentTabs::currentChanged, this, &MainWindow::showTab);
    m_docks->layout()->restore();
    Language::bind(this, [this] { showTexts(); });
}

MainWindow::~MainWindow()
{
    // The tabs' panels stand in the docks, and the commands listen to what is in the tabs.
    m_tabs->disconnect(this);
    delete m_commands;
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

void MainWindow::addStatus()
{
    m_controls = new ZoomControls(editor(), this);
    m_autosave = new AutosaveStatus(this);
    m_counts = new DiagramCounts(this);
    for (QWidget *widget : {static_cast<QWidget *>(m_counts), static_cast<QWidget *>(m_autosave),
                            static_cast<QWidget *>(m_controls)})
        statusBar()->addPermanentWidget(widget);
}

void MainWindow::addCommands()
{
    m_commands = new WindowCommands(m_tabs, m_recent, m_actions, m_theme, m_controls, this);
    statusBar()->insertPermanentWidget(0, new LoadProgress(m_commands->files()->loader(), this));
    m_actions->add(
        QStringLiteral("details"), [] { return tr("&Details"); }, {Qt::Key_F4},
        ActionSet::Scope::Selection, [this] { showDetails(); });
    m_actions->add(
        QStringLiteral("filter"), [] { return tr("Filt&er…"); },
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_L)}, ActionSet::Scope::Window,
        [this] { m_tabs->current()->filterBar()->open(); });
    m_docks =
        std::make_unique<WindowDocks>(this, m_actions->action(QStringLiteral("exportActions")),
                                      m_actions->action(QStringLiteral("printActions")));
    m_commands->reports()->setActionsPage([this] { return m_docks->actionsPage(); });
    m_commands->views()->offerFocus(m_docks->layout());
}

void MainWindow::addBars()
{
    auto *const visited = new QMenu(this);
    Language::bind(visited, &QMenu::setTitle, [] { return tr("Shown be&fore"); });
    m_commands->views()->listVisited(visited);
    new MenuKeys(this); // which owns it
    QHash<QString, QMenu *> submenus = m_commands->looks()->menus();
    submenus.insert(QStringLiteral("recent"), m_recent->menu());
    submenus.insert(QStringLiteral("mark"), m_commands->marks()->menu());
    submenus.insert(QStringLiteral("visited"), visited);
    submenus.insert(QStringLiteral("language"), new LanguageMenu(this));
    Menus::build(this, *m_actions, submenus);
    m_actions->addShortcuts(ActionSet::Scope::Window, this); // also without the menus
    QMenu *const panels = createPopupMenu();
    Language::bind(panels, &QMenu::setTitle, [] { return tr("&Panels"); });
    menuBar()->insertMenu(findChild<QMenu *>(QStringLiteral("helpMenu"))->menuAction(), panels);
    m_actions->updateIcons(palette());
    m_docks->dressTitles();
}

void MainWindow::connectCommands()
{
    connect(m_commands, &WindowCommands::message, this, &MainWindow::showMessage);
    connect(m_commands->edits(), &EditCommands::newDiagramWanted, this, &MainWindow::startDiagram);
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
    m_docks->takeIn(*tab);
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
    offerActionsInBoneMenu(*editor, *m_actions, m_commands->marks()->menu());
    offerActionsInTreeMenu(*tab->tree()->view(), *editor, *m_actions, m_commands->marks()->menu());
    new MouseDrags(
        editor, [this] { m_actions->action(QStringLiteral("markHere"))->trigger(); },
        tab); // which owns it
    auto *const typing = new TypedTitle(editor, tab);
    connect(typing, &TypedTitle::typed, this, [this, editor](const QString &text) {
        m_commands->edits()->rename(editor->firstSelectedSpearIndex(), text);
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
    m_docks->show(*tab);
    m_controls->setEditor(tab->editor());
    m_counts->setSession(tab->session());
    m_autosave->setCopy(tab->recovery());
    m_commands->setTab(tab);
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
    m_commands->files()->open(sources);
}

void MainWindow::offerRecovery()
{
    m_commands->recovery()->offer();
}

/** Begins another diagram with its title. */
void MainWindow::startDiagram()
{
    m_commands->files()->newDocument();
    m_commands->edits()->rename(editor()->rootIndex());
}

/** Shows the details of the first selected subject of the current tab. */
void MainWindow::showDetails()
{
    DetailsPanel *const details = m_tabs->current()->details();
    details->showSubject(editor()->firstSelectedSpearIndex());
    m_docks->showDetails();
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
    m_commands->updateActions();
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
    if (!m_commands->files()->mayCloseAll()) {
        event->ignore();
        return;
    }
    m_commands->files()->end();
    m_docks->layout()->save();
    event->accept();
}
