// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <taskwindow.h>

#include <conflictbar.h>
#include <taskdesk.h>
#include <taskform.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QDockWidget>
#include <QEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QSaveFile>
#include <QSlider>
#include <QSpinBox>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>
#include <QUuid>
#include <QVBoxLayout>

TaskWindow::TaskWindow(TaskDesk &desk, QWidget *parent)
    : QMainWindow(parent)
    , m_desk(desk)
    , m_editor(new FishEditor(this))
    , m_form(new TaskForm(desk.model(), *m_editor, this))
    , m_conflicts(new ConflictBar(desk.sync(), this))
    , m_state(new QLabel(this))
    , m_zoom(new QSlider(Qt::Horizontal, this))
    , m_rotation(new QSpinBox(this))
{
    setWindowTitle(tr("Tasks[*]"));
    auto *const middle = new QWidget(this);
    auto *const column = new QVBoxLayout(middle);
    column->addWidget(m_conflicts);
    column->addWidget(m_editor, 1);
    setCentralWidget(middle);
    auto *const dock = new QDockWidget(tr("Task"), this);
    dock->setWidget(m_form);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    statusBar()->addPermanentWidget(m_state);

    m_editor->setModel(&desk.model());
    m_editor->setLook(DiagramLook::Clear);
    m_editor->setAutosaveInterval(0); // the data base has every edit at once
    m_editor->setPasteAsNew(true);    // a uuid is a row of the data base, and there once
    desk.sync().addEditor(m_editor);
    fillToolBar();
    connectTasks();
    connectView();
    connectState();
    addMenuEntries();
    followPalette();
}

TaskWindow::~TaskWindow()
{
    delete m_form; // before the editor that it edits through
    delete m_editor;
}

void TaskWindow::fillToolBar()
{
    QToolBar *const bar = addToolBar(tr("Edit"));
    bar->addAction(m_desk.undoGroup().undoAction());
    bar->addAction(m_desk.undoGroup().redoAction());
    m_copy = bar->addAction(tr("Copy"), m_editor, &FishEditor::copy);
    m_paste = bar->addAction(tr("Paste"), m_editor, &FishEditor::paste);
    bar->addAction(tr("Delete"), m_editor, &FishEditor::del);
    bar->addAction(tr("Take away…"), this, &TaskWindow::exportDiagram);
    bar->addAction(tr("Bring back…"), this, &TaskWindow::mergeDocument);
    m_copy->setEnabled(false);
    m_paste->setEnabled(false);
    m_zoom->setRange(0, 500);
    m_rotation->setRange(-360, 360);
    bar->addWidget(m_zoom);
    bar->addWidget(m_rotation);
}

void TaskWindow::connectTasks()
{
    FishModel &model = m_desk.model();
    connect(m_editor, &FishEditor::oneTaskClicked, this,
            [this, &model](const QString &, const QString &uuid) {
                showDetails(model.modelIndexByUuid(uuid));
            });
    connect(m_editor, &FishEditor::editTaskDetail, this, &TaskWindow::showDetails);
    connect(m_editor, &FishEditor::createNewSubTask, this,
            [this, &model](const QString &title, const QString &uuid, const QString &) {
                addTask(model.modelIndexByUuid(uuid), tr("Sub-task of %1").arg(title));
            });
    connect(m_editor, &FishEditor::insertChildTask, this,
            [this](const QModelIndex &parent) { addTask(parent, tr("New task")); });
    // The diagram has the new place already, and with it the data base will.
    connect(m_editor, &FishEditor::changeTaskParent, this,
            [this](const QStringList &uuids, const QString &, CHANGE_PARENT_TYPE) {
                note(tr("Moved %n task(s)", nullptr, int(uuids.size())));
            });
    connect(m_editor, &FishEditor::changeFishWithModelIndex, this, &TaskWindow::showDiagram);
}

void TaskWindow::connectView()
{
    // The editor tells its zoom and rotation, and the host's controls set them.
    connect(m_editor, &FishEditor::zoomValueChanged, m_zoom, &QSlider::setValue);
    connect(m_zoom, &QSlider::valueChanged, m_editor, &FishEditor::zoomFish);
    connect(m_editor, &FishEditor::rotateValueChanged, m_rotation, &QSpinBox::setValue);
    connect(m_rotation, qOverload<int>(&QSpinBox::valueChanged), m_editor, &FishEditor::rotateFish);
    connect(m_editor, &FishEditor::copyAvailable, m_copy, &QAction::setEnabled);
    connect(m_editor, &FishEditor::clipBoardAvailable, m_paste, &QAction::setEnabled);
}

void TaskWindow::connectState()
{
    const TaskSync &sync = m_desk.sync();
    const auto showState = [this, &sync] {
        setWindowModified(!sync.isStored());
        m_state->setText(!sync.isOnline()  ? tr("No connection: your changes wait.")
                         : sync.isStored() ? tr("Stored")
                                           : tr("Storing…"));
    };
    connect(&sync, &TaskSync::stateChanged, this, showState);
    connect(&sync, &TaskSync::received, this, [this](const QStringList &uuids) {
        if (m_form->uuid().isEmpty() || uuids.contains(m_form->uuid()))
            m_form->refresh();
    });
    showState();
}

void TaskWindow::addMenuEntries()
{
    m_editor->setBoneMenuFiller([this](QMenu &menu, SpearItem *spear) {
        const TreeItem *const task = spear->treeItem();
        if (!task)
            return;
        menu.addAction(tr("Copy address"), this, [address = TaskDesk::addressOf(task->uuid())] {
            QGuiApplication::clipboard()->setText(address.toString());
        });
    });
}

/** A dark desktop gets a dark canvas, and colours that can be told apart on it. */
void TaskWindow::followPalette()
{
    const QColor canvas = palette().color(QPalette::Base);
    DiagramLook::Options options = m_editor->lookOptions();
    options.palette =
        canvas.lightness() < 128 ? DiagramLook::DarkColors : DiagramLook::DistinctColors;
    m_editor->setLookOptions(options);
    m_editor->view()->setBackgroundBrush(canvas);
}

void TaskWindow::showDiagram(const QModelIndex &head)
{
    const QString title = head.data().toString();
    m_editor->setRootIndex(head);
    note(tr("Showing %1").arg(title));
}

void TaskWindow::addTask(const QModelIndex &parent, const QString &title)
{
    if (!parent.isValid())
        return;
    auto *const task = new TreeItem;
    task->setTitle(title);
    task->setUuid(QUuid::createUuid().toString());
    // The editor takes the subject over. As an edit it can be undone.
    m_editor->insertChildSubject(parent, task);
    note(tr("Created %1").arg(title));
}

void TaskWindow::showDetails(const QModelIndex &index)
{
    m_form->show(index);
    note(tr("Details of %1").arg(index.data().toString()));
}

void TaskWindow::exportDiagram()
{
    const QString name = QFileDialog::getSaveFileName(this, tr("Take the diagram away"));
    if (name.isEmpty())
        return;
    QSaveFile file(name);
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.write(m_desk.documentOf(m_editor->rootIndex())) > 0 &&
                           file.commit();
    note(isWritten ? tr("Written") : tr("%1 cannot be written.").arg(name));
}

void TaskWindow::mergeDocument()
{
    const QUrl url = QFileDialog::getOpenFileUrl(this, tr("Bring a diagram back"));
    if (!url.isEmpty())
        m_desk.mergeFrom(url);
}

void TaskWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_desk.undoGroup().setActive(m_editor);
    if (event->type() == QEvent::PaletteChange)
        followPalette();
}

/** Asks when what waits is in this process alone. */
void TaskWindow::closeEvent(QCloseEvent *event)
{
    const bool isSafe = m_desk.sync().synchronize() || m_desk.sync().isKept();
    const auto answer =
        isSafe
            ? QMessageBox::Discard
            : QMessageBox::warning(this, tr("Close"),
                                   tr("The data base cannot be reached. What you have changed "
                                      "since is lost with the last window; take the diagram "
                                      "away to bring it back later."),
                                   QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel);
    event->setAccepted(answer == QMessageBox::Discard);
}

void TaskWindow::note(const QString &text)
{
    m_lastNote = text;
    statusBar()->showMessage(text);
    Q_EMIT noted(text);
}
