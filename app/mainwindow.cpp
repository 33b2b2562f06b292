// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/mainwindow.h>

#include <app/actionset.h>
#include <app/canvastheme.h>
#include <app/detailspanel.h>
#include <app/diagramsession.h>
#include <app/editcommands.h>
#include <app/exportcommands.h>
#include <app/filecommands.h>
#include <app/filedrop.h>
#include <app/historypanel.h>
#include <app/lastdocuments.h>
#include <app/linkopener.h>
#include <app/menukeys.h>
#include <app/menus.h>
#include <app/movecommands.h>
#include <app/subjecttree.h>
#include <app/treesync.h>
#include <app/typedtitle.h>
#include <app/viewcommands.h>
#include <app/walkcommands.h>
#include <app/zoomcontrols.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/exchange/pictureexport.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/undo/undostack.h>

#include <QAction>
#include <QCloseEvent>
#include <QDockWidget>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QSettings>
#include <QStatusBar>
#include <QUrl>

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_model(new FishModel(this))
    , m_editor(new FishEditor(this))
    , m_session(new DiagramSession(m_model, m_editor, this))
    , m_theme(new CanvasTheme(m_editor, this))
    , m_actions(new ActionSet(this))
{
    setWindowIcon(QIcon(QStringLiteral(":/app/icon.svg")));
    setUpEditor();
    auto *const controls = new ZoomControls(m_editor, this);
    m_files = new FileCommands(m_session, m_actions, this);
    m_exports = new ExportCommands(m_session, m_theme, m_actions, this);
    m_edits = new EditCommands(m_session, m_actions, this);
    m_moves = new MoveCommands(m_session, m_actions, this);
    m_walk = new WalkCommands(m_session, m_actions, this);
    m_views = new ViewCommands(m_session, m_theme, controls, m_actions, this);
    m_actions->add(QStringLiteral("details"), tr("&Details"), {Qt::Key_F4},
                   ActionSet::Scope::Selection,
                   [this] { showDetails(m_editor->firstSelectedSpearIndex()); });
    addDocks();
    addBars();
    statusBar()->addPermanentWidget(controls);
    connectGestures();
    connect(m_session, &DiagramSession::stateChanged, this, &MainWindow::updateState);
    restoreLayout();
    updateState();
}

MainWindow::~MainWindow()
{
    // What listens to the drawing goes before it, and what edits the model before that.
    delete m_sync;
    delete m_editor;
    delete m_session;
}

void MainWindow::setUpEditor()
{
    m_editor->setModel(m_model);
    m_editor->setPasteAsNew(true);
    m_editor->undoStack()->setRolling(true);
    m_editor->setFrameShape(QFrame::NoFrame);
    m_editor->layout()->setContentsMargins(0, 0, 0, 0);
    m_editor->view()->setFrameShape(QFrame::NoFrame);
    m_editor->view()->viewport()->installEventFilter(this);
    setCentralWidget(m_editor);
    m_theme->follow(palette());
}

void MainWindow::addDocks()
{
    const auto addDock = [this](const char *name, const QString &title, QWidget *content,
                                Qt::DockWidgetArea area) {
        auto *const dock = new QDockWidget(title, this);
        dock->setObjectName(QLatin1String(name));
        dock->setWidget(content);
        addDockWidget(area, dock);
        return dock;
    };
    m_tree = new SubjectTree(m_model, this);
    m_sync = new TreeSync(m_session, m_tree, this);
    m_details = new DetailsPanel(m_session, this);
    QDockWidget *const documents =
        addDock("documentsDock", tr("Documents"), m_tree, Qt::LeftDockWidgetArea);
    QDockWidget *const details =
        addDock("detailsDock", tr("Details"), m_details, Qt::RightDockWidgetArea);
    QDockWidget *const history = addDock(
        "historyDock", tr("History"), new HistoryPanel(m_session, this), Qt::RightDockWidgetArea);
    resizeDocks({documents, details}, {240, 280}, Qt::Horizontal);
    resizeDocks({details, history}, {500, 160}, Qt::Vertical);
    m_actions->addShortcuts(ActionSet::Scope::Selection, m_editor);
    m_actions->addShortcuts(ActionSet::Scope::Selection, m_tree->view());
    m_actions->addShortcuts(ActionSet::Scope::Drawing, m_editor);
}

void MainWindow::addBars()
{
    auto *const visited = new QMenu(tr("Shown be&fore"), this);
    m_views->listVisited(visited);
    new MenuKeys(this); // which owns it
    Menus::build(
        this, *m_actions,
        {{QStringLiteral("recent"), m_files->recentMenu()}, {QStringLiteral("visited"), visited}});
    QMenu *const panels = createPopupMenu();
    panels->setTitle(tr("&Panels"));
    menuBar()->addMenu(panels);
    m_actions->updateIcons(palette());
}

void MainWindow::connectGestures()
{
    const auto show = [this](const QString &text) { statusBar()->showMessage(text, 10000); };
    connect(m_files, &FileCommands::message, this, show);
    connect(m_exports, &ExportCommands::message, this, show);
    connect(m_edits, &EditCommands::message, this, show);
    auto *const links = new LinkOpener(this);
    connect(links, &LinkOpener::failed, this,
            [show](const QUrl &url) { show(tr("Nothing opens %1").arg(url.toDisplayString())); });

    auto *const typing = new TypedTitle(m_editor, this);
    connect(typing, &TypedTitle::typed, this, [this](const QString &text) {
        m_edits->rename(m_editor->firstSelectedSpearIndex(), text);
    });
    auto *const drops = new FileDrop(this);
    drops->watch(this);
    drops->watch(m_editor->view()->viewport());
    // Queued, since the program from which the file comes waits for the end of the drop.
    connect(drops, &FileDrop::dropped, this, &MainWindow::open, Qt::QueuedConnection);

    connect(m_editor, &FishEditor::editTaskDetail, this, &MainWindow::showDetails);
    connect(m_editor, &FishEditor::oneTaskClicked, this,
            [this] { showDetails(m_editor->firstSelectedSpearIndex()); });
    connect(m_editor, &FishEditor::createNewSubTask, this,
            [this] { m_edits->insertSubTask(m_editor->firstSelectedSpearIndex()); });
    connect(m_editor, &FishEditor::insertChildTask, m_edits, &EditCommands::insertChild);
    connect(m_editor, &FishEditor::changeFishWithModelIndex, m_session,
            &DiagramSession::showAsDiagram);
    connect(m_editor, &FishEditor::changeTaskParent, this,
            [this, show](const QStringList &children, const QString &parentId) {
                const QModelIndex index = m_model->modelIndexByUuid(parentId);
                const TreeItem *const task = m_model->getTreeItem(index);
                show(tr("%n task(s) moved to %1", nullptr, children.size())
                         .arg(task ? task->title() : tr("the top")));
            });
    connect(m_tree->view(), &QTreeView::doubleClicked, this,
            [this] { showDetails(m_editor->firstSelectedSpearIndex()); });
}

void MainWindow::open(const QStringList &sources)
{
    m_files->open(sources);
}

void MainWindow::showDetails(const QModelIndex &index)
{
    m_details->showSubject(index);
    auto *const dock = findChild<QDockWidget *>(QStringLiteral("detailsDock"));
    dock->show();
    dock->raise();
    m_details->focusTitle();
}

void MainWindow::updateState()
{
    const FishInfo *const document = m_session->document();
    setWindowTitle(document ? tr("%1[*] – Fishbone").arg(document->userFriendlyCurrentFile())
                            : tr("Fishbone"));
    setWindowModified(document && document->modified());
    m_files->updateActions();
    m_exports->updateActions();
    m_edits->updateActions();
    m_moves->updateActions();
    m_walk->updateActions();
    m_views->updateActions();
    m_details->showSubject(m_editor->firstSelectedSpearIndex());
    m_tree->view()->viewport()->update(); // not every change of a title is announced
    updateCanvasRect();
}

/** Keeps what can be scrolled to as large as the drawing is now, and a little free space. */
void MainWindow::updateCanvasRect()
{
    constexpr double margin = 20;
    m_editor->view()->setSceneRect(
        PictureExport::visibleRect(*m_editor->scene()).adjusted(-margin, -margin, margin, margin));
}

/** The subject whose bone, or what stands at it, is drawn at @p pos of the viewport. */
QModelIndex MainWindow::subjectAt(const QPoint &pos) const
{
    QGraphicsItem *item = m_editor->view()->itemAt(pos);
    while (item && !qgraphicsitem_cast<SpearItem *>(item))
        item = item->parentItem();
    return m_editor->spearIndex(qgraphicsitem_cast<SpearItem *>(item));
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        const auto *const press = static_cast<QMouseEvent *>(event);
        // Before the view takes the selection for what is to be moved.
        if (press->button() == Qt::LeftButton && !m_editor->view()->itemAt(press->pos()))
            m_editor->scene()->clearSelection();
        m_pressed = subjectAt(press->pos());
    } else if (event->type() == QEvent::MouseButtonRelease) {
        // Once the view is through with the click, which may have expanded a bone.
        QMetaObject::invokeMethod(this, &MainWindow::followClick, Qt::QueuedConnection);
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::followClick()
{
    m_sync->followBone(m_pressed);
    // A view that is scrolled by hand deselects everything after a click on a button beside its
    // bone.
    if (m_pressed.isValid() && !m_editor->hasSelection())
        m_session->select(m_pressed);
    m_session->touch();
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    m_theme->follow(palette());
    m_actions->updateIcons(palette());
}

void MainWindow::restoreLayout()
{
    resize(1280, 800);
    const QSettings settings;
    restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray());
    restoreState(settings.value(QStringLiteral("layout")).toByteArray());
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_files->closeAll()) {
        event->ignore();
        return;
    }
    LastDocuments::remember(*m_session);
    QSettings settings;
    settings.setValue(QStringLiteral("geometry"), saveGeometry());
    settings.setValue(QStringLiteral("layout"), saveState());
    event->accept();
}
