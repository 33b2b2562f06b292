// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <taskhost.h>

#include <fishbone/model/treeitem.h>

#include <QAction>
#include <QDockWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

QString titleOf(const QModelIndex &index)
{
    return index.data().toString();
}

} // namespace

TaskHost::TaskHost(QWidget *parent)
    : QMainWindow(parent)
    , m_editor(new FishEditor(this))
    , m_journal(new QPlainTextEdit(this))
    , m_details(new QPlainTextEdit(this))
    , m_zoom(new QSlider(Qt::Horizontal, this))
    , m_rotation(new QSpinBox(this))
{
    setWindowTitle(tr("Tasks[*]"));
    setCentralWidget(m_editor);
    m_model.setModelType(FISH_MODEL_DIAGRAM);
    m_editor->setModel(&m_model);
    m_zoom->setRange(0, 500);
    m_rotation->setRange(-360, 360);
    m_journal->setReadOnly(true);

    QToolBar *const bar = addToolBar(tr("Edit"));
    m_undo = bar->addAction(tr("Undo"), m_editor, &FishEditor::undo);
    m_copy = bar->addAction(tr("Copy"), m_editor, &FishEditor::copy);
    m_paste = bar->addAction(tr("Paste"), m_editor, &FishEditor::paste);
    m_copy->setEnabled(false);
    m_paste->setEnabled(false);
    bar->addWidget(m_zoom);
    bar->addWidget(m_rotation);

    auto *const panel = new QWidget(this);
    auto *const apply = new QPushButton(tr("Apply"), panel);
    auto *const layout = new QVBoxLayout(panel);
    layout->addWidget(m_details);
    layout->addWidget(apply);
    layout->addWidget(m_journal);
    auto *const dock = new QDockWidget(tr("Task"), this);
    dock->setWidget(panel);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    connect(apply, &QPushButton::clicked, this, &TaskHost::applyDetails);

    connectModel();
    connectTasks();
    connectView();
    connectBuffers();
}

TaskHost::~TaskHost()
{
    delete m_editor; // before the model that it shows
}

QString TaskHost::journal() const
{
    return m_journal->toPlainText();
}

void TaskHost::connectModel()
{
    connect(&m_model, &FishModel::fishLoaded, this,
            [this](const QModelIndex &index, MODEL_ERROR error) {
                if (error != MODEL_NO_ERROR) {
                    note(tr("There is no diagram to load."));
                    return;
                }
                m_editor->setRootIndex(index);
                note(tr("Loaded %1").arg(titleOf(index)));
            });
}

void TaskHost::connectTasks()
{
    connect(m_editor, &FishEditor::oneTaskClicked, this,
            [this](const QString &title, const QString &id) {
                showDetails(m_model.modelIndexByUuid(id));
                note(tr("Opened %1").arg(title));
            });
    connect(m_editor, &FishEditor::createNewSubTask, this,
            [this](const QString &title, const QString &id, const QString &) {
                addTask(m_model.modelIndexByUuid(id), tr("Sub-task of %1").arg(title));
            });
    connect(m_editor, &FishEditor::insertChildTask, this,
            [this](const QModelIndex &parent) { addTask(parent, tr("New task")); });
    connect(m_editor, &FishEditor::editTaskDetail, this, &TaskHost::showDetails);
    connect(m_editor, &FishEditor::changeTaskParent, this,
            [this](const QStringList &ids, const QString &parentId, CHANGE_PARENT_TYPE type) {
                m_tasks.setParent(ids, parentId);
                note(type == CHANGE_PARENT_BY_DROP ? tr("Dropped %1 tasks").arg(ids.size())
                                                   : tr("Moved %1 tasks").arg(ids.size()));
            });
    connect(m_editor, &FishEditor::changeFishWithModelIndex, this,
            [this](const QModelIndex &index) {
                const QString title = titleOf(index);
                m_editor->setRootIndex(index);
                note(tr("Showing %1 alone").arg(title));
            });
}

void TaskHost::connectView()
{
    // The editor tells its zoom and rotation, and the host's controls set them.
    connect(m_editor, &FishEditor::zoomValueChanged, m_zoom, &QSlider::setValue);
    connect(m_zoom, &QSlider::valueChanged, m_editor, &FishEditor::zoomFish);
    connect(m_editor, &FishEditor::rotateValueChanged, m_rotation, &QSpinBox::setValue);
    connect(m_rotation, qOverload<int>(&QSpinBox::valueChanged), m_editor, &FishEditor::rotateFish);
    connect(m_editor, &FishEditor::onExpand, this,
            [this](const QModelIndex &index) { note(tr("Expanded %1").arg(titleOf(index))); });
    connect(m_editor, &FishEditor::onCollaps, this,
            [this](const QModelIndex &index) { note(tr("Contracted %1").arg(titleOf(index))); });
    connect(m_editor, &FishEditor::onExpandAll, this, [this] { note(tr("Expanded all")); });
    connect(m_editor, &FishEditor::onCollapsAll, this, [this] { note(tr("Contracted all")); });
}

void TaskHost::connectBuffers()
{
    connect(m_editor, &FishEditor::copyAvailable, m_copy, &QAction::setEnabled);
    connect(m_editor, &FishEditor::clipBoardAvailable, m_paste, &QAction::setEnabled);
    connect(m_editor, &FishEditor::contentsChanged, this,
            [this] { setWindowModified(m_editor->isModified()); });
}

void TaskHost::addTask(const QModelIndex &parent, const QString &title)
{
    const QString parentId = parent.siblingAtColumn(1).data().toString();
    const QString id = m_tasks.create(title, parentId);
    // The editor takes the subject over. As an edit it can be undone.
    m_editor->insertChildSubject(parent, new TreeItem(title, id, QString(), parentId, 0, nullptr));
    note(tr("Created %1").arg(title));
}

void TaskHost::showDetails(const QModelIndex &index)
{
    const TreeItem *const subject = m_model.getTreeItem(index);
    if (!subject)
        return;
    m_detailed = index;
    m_details->setPlainText(subject->detail());
    note(tr("Details of %1").arg(subject->title()));
}

void TaskHost::applyDetails()
{
    const TreeItem *const subject = m_model.getTreeItem(m_detailed);
    if (!subject)
        return;
    TreeItem edited;
    edited.setTitle(subject->title());
    edited.setDetail(m_details->toPlainText());
    edited.setManagerId(subject->managerId());
    edited.setManagerName(subject->managerName());
    edited.setFollowers(subject->followers());
    edited.setPlanEndDate(subject->planEndDate());
    edited.setPriority(subject->priority());
    m_editor->editSubject(m_detailed, &edited);
    note(tr("Stored the details of %1").arg(edited.title()));
}

void TaskHost::note(const QString &text)
{
    m_journal->appendPlainText(text);
}
