// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/fisheditor.h>

#include <algorithm>

#include <QHBoxLayout>
#include <QMimeData>
#include <QTimer>
#include <QVector>

#include <fishbone/dialogs/followlanguage.h>
#include <fishbone/drawing/fishdrawing.h>
#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/editor/accessiblediagram.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/editor/selectionhold.h>
#include <fishbone/items/expanditem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/undo/undostack.h>

namespace {
constexpr int sunkenPanel = 54;         ///< QFrame::StyledPanel | QFrame::Sunken
constexpr int autosaveInterval = 30000; ///< milliseconds

QVector<FishEditor *> &livingEditors()
{
    static QVector<FishEditor *> editors;
    return editors;
}

void registerMetaTypes()
{
    qRegisterMetaType<CHANGE_PARENT_TYPE>("CHANGE_PARENT_TYPE");
    qRegisterMetaType<TreeItem *>("TreeItem*");
    qRegisterMetaType<const QMimeData *>("const QMimeData*");
    qRegisterMetaType<QList<QGraphicsItem *>>("QList<QGraphicsItem*>");
}
} // namespace

FishEditor::FishEditor(QWidget *parent)
    : QFrame(parent)
    , m_drawing(std::make_unique<FishDrawing>())
{
    registerMetaTypes();
    AccessibleDiagram::install();
    m_undoStack = new UndoStack(this);
    setFrameStyle(sunkenPanel);
    m_view = new GraphicsView(this);
    connect(m_view, &GraphicsView::rightClicked, this, &FishEditor::onRightClicked);
    connect(m_view, &GraphicsView::moveSpear, this, &FishEditor::moveItems);
    // Queued, so that a drop is handled when the drag has ended.
    connect(m_view, &GraphicsView::dropTo, this, &FishEditor::onDropTo, Qt::QueuedConnection);
    auto *const layout = new QHBoxLayout(this);
    layout->addWidget(m_view);
    m_scene = std::make_unique<FishScene>();
    connect(m_scene.get(), &FishScene::selectionChanged, this, &FishEditor::sceneSelectionChanged);
    m_view->setScene(m_scene.get());
    setupMatrix();
    ExpandItem::setFishEditor(this);
    startSaveTmpFileTimer();
    livingEditors().append(this);
    followLanguage(this, [this] { updateFish(false); }); // the head may show counts
}

FishEditor::~FishEditor()
{
    livingEditors().removeOne(this);
    // A model below the editor dies later than this part of it, and must not call it any more.
    const QList<QAbstractItemModel *> models = findChildren<QAbstractItemModel *>();
    for (QAbstractItemModel *model : models)
        model->disconnect(this);
    // The scene goes first and reports nothing more: neither host nor view shall hear of the
    // selection that dies with it.
    m_scene->disconnect(this);
    m_headSpear = SpearPointer();
    m_view->setScene(nullptr);
    m_scene.reset();
}

void FishEditor::startSaveTmpFileTimer()
{
    m_saveTimer = new QTimer(this);
    m_saveTimer->setInterval(autosaveInterval);
    connect(m_saveTimer, &QTimer::timeout, this, &FishEditor::saveTmpFile);
    m_saveTimer->start(autosaveInterval);
}

void FishEditor::saveTmpFile()
{
    if (FishInfo *const document = currentFishInfo())
        document->saveTmpFile();
}

FishModel *FishEditor::fishModel() const
{
    return qobject_cast<FishModel *>(m_model.data());
}

int FishEditor::modelType() const
{
    const FishModel *const model = fishModel();
    return model ? int(model->modelType()) : 0;
}

void FishEditor::setModel(QAbstractItemModel *model)
{
    m_model = model;
    if (model)
        connectModel(model);
}

QModelIndex FishEditor::spearIndex(SpearItem *spear) const
{
    return spear ? spear->modelIndex() : QModelIndex();
}

SpearItem *FishEditor::spearOf(const QModelIndex &index) const
{
    const FishModel *const model = fishModel();
    if (!model || index.model() != model)
        return nullptr;
    return model->getTreeItem(index)->spear();
}

FishInfo *FishEditor::currentFishInfo() const
{
    const FishModel *const model = fishModel();
    // What is shown may come from a model set earlier, whose rows are not those of this one.
    if (!model || !m_rootIndex.isValid() || m_rootIndex.model() != model)
        return nullptr;
    QModelIndex top = m_rootIndex;
    while (top.parent().isValid())
        top = top.parent();
    return model->fishList().value(top.row());
}

bool FishEditor::isModified() const
{
    const FishInfo *const document = currentFishInfo();
    return document && document->modified();
}

void FishEditor::setModified(bool modified)
{
    if (FishInfo *const document = currentFishInfo())
        document->setModified(modified);
}

int FishEditor::directionFor(const SpearItem *parent, int level, int row)
{
    return SpearBuilder::directionFor(parent, level, row);
}

void FishEditor::showNothing()
{
    m_headSpear = SpearPointer();
    const SelectionHold hold(this);
    m_scene->clear();
    AccessibleDiagram::drawingChanged(m_view);
}

void FishEditor::unlinkShownSubjects()
{
    const FishModel *const model = fishModel();
    if (!model || !m_rootIndex.isValid() || m_rootIndex.model() != model)
        return;
    std::vector<TreeItem *> pending{model->getTreeItem(m_rootIndex)};
    while (!pending.empty()) {
        TreeItem *const subject = pending.back();
        pending.pop_back();
        subject->setSpear(nullptr, QModelIndex());
        const auto &children = subject->childItems();
        pending.insert(pending.end(), children.cbegin(), children.cend());
    }
}

void FishEditor::takeOverFromOtherEditors()
{
    const FishInfo *const document = currentFishInfo();
    const QVector<FishEditor *> editors = livingEditors();
    for (FishEditor *other : editors) {
        if (other == this || other->m_model != m_model || other->currentFishInfo() != document)
            continue;
        other->showNothing();
        other->m_rootIndex = QModelIndex();
        other->m_shown = ShownRoot();
    }
}

bool FishEditor::isShownByAnotherEditor(const FishInfo *document) const
{
    const QVector<FishEditor *> &editors = livingEditors();
    return std::any_of(editors.cbegin(), editors.cend(), [&](const FishEditor *other) {
        return other != this && other->headSpear() && other->currentFishInfo() == document;
    });
}

void FishEditor::setRootIndex(const QModelIndex &index)
{
    const FishModel *const model = fishModel();
    const QModelIndex root =
        model && index.model() == model ? index.sibling(index.row(), 0) : QModelIndex();
    const SelectionHold hold(this); // until the new drawing stands
    unlinkShownSubjects();
    showNothing();
    if (!root.isValid())
        return;
    m_rootIndex = root;
    takeOverFromOtherEditors();
    rememberShownRoot();
    loadFish(root);
    expandorContractAll(false);
    centerView(root);
    ensureVisible(root);
}

void FishEditor::loadFish(const QModelIndex &index)
{
    const FishModel *const model = fishModel();
    if (!model || index.model() != model)
        return;
    m_headSpear = SpearBuilder(*model).buildHead(index);
    m_scene->addItem(headSpear());
}

void FishEditor::generateSpear(QAbstractItemModel *model, const QModelIndex &index)
{
    const auto *const subjects = qobject_cast<FishModel *>(model);
    if (subjects && index.model() == subjects)
        SpearBuilder(*subjects).buildChildren(index);
}

void FishEditor::generateAllSubSpear(QAbstractItemModel *model, const QModelIndex &index)
{
    const auto *const subjects = qobject_cast<FishModel *>(model);
    if (subjects && index.model() == subjects)
        SpearBuilder(*subjects).buildDescendants(index);
}

void FishEditor::generateSpear(const QModelIndex &index, int level, int row, SpearItem *parent)
{
    const FishModel *const model = fishModel();
    if (model && index.model() == model)
        SpearBuilder(*model).buildSubtree(index, level, row, parent, headSpear());
}

void FishEditor::updateFish(bool rebuild)
{
    const SelectionHold hold(this);
    if (rebuild) {
        setRootIndex(rootIndex());
    } else if (headSpear() && !headSpear()->treeItem()) {
        // The subject left in a way that nobody announced. If it died, so did what the index has.
        if (const FishModel *const model = fishModel(); model && !model->contains(m_shown.subject))
            m_rootIndex = QModelIndex();
        showNothing();
    } else if (headSpear()) {
        updateHeadText();
        m_drawing->update(headSpear());
        AccessibleDiagram::drawingChanged(m_view);
        return;
    }
    if (FishInfo *const document = currentFishInfo())
        document->updateNoParentNodeCount();
}

bool FishEditor::showsOwnItemsOnly() const
{
    return m_drawing->isAlone(*m_scene, headSpear());
}

void FishEditor::setLook(DiagramLook::Kind look)
{
    m_drawing->choose(look, lookOptions());
    updateFish(false);
}

DiagramLook::Kind FishEditor::look() const
{
    return m_drawing->kind();
}

void FishEditor::setLookOptions(const DiagramLook::Options &options)
{
    if (options == lookOptions())
        return;
    m_drawing->choose(look(), options);
    updateFish(false);
}

const DiagramLook::Options &FishEditor::lookOptions() const
{
    return m_drawing->options();
}

void FishEditor::updateHeadText()
{
    // The title of a document's head shows the counts, so these come first.
    if (FishInfo *const document = currentFishInfo())
        document->updateNoParentNodeCount();
    // Asked of its own model, which need not be the one that was set last.
    const QString title = headSpear()->modelIndex().data(Qt::DisplayRole).toString();
    if (headSpear()->text() != title)
        headSpear()->setText(title);
}

void FishEditor::refreshFish()
{
    if (!headSpear() || !headSpear()->treeItem())
        return;
    updateHeadText();
    m_drawing->layout(headSpear()).refreshSpears();
}

void FishEditor::updateSpearSize()
{
    if (headSpear())
        m_drawing->layout(headSpear()).sizeSpears();
}

void FishEditor::updateSpearPostion()
{
    if (headSpear())
        m_drawing->layout(headSpear()).placeSpears();
}

void FishEditor::expandorContractAll(bool expand)
{
    const SelectionHold hold(this);
    if (headSpear())
        m_drawing->layout(headSpear()).expandBones(expand);
    updateFish(false);
}

void FishEditor::contractAll()
{
    expandorContractAll(false);
}

void FishEditor::expandAll()
{
    if (headSpear())
        generateAllSubSpear(m_model, headSpear()->modelIndex());
    expandorContractAll(true);
}

void FishEditor::modifyExpandAll()
{
    const QPointer<FishEditor> alive(this);
    expandorContractAll(true);
    if (alive)
        Q_EMIT onExpandAll();
}

void FishEditor::modifyContractAll()
{
    const QPointer<FishEditor> alive(this);
    expandorContractAll(false);
    if (alive)
        Q_EMIT onCollapsAll();
}

void FishEditor::modifyExpand()
{
    const QModelIndex index = firstSelectedSpearIndex();
    if (!index.isValid())
        return;
    firstSelectedSpear()->setExpand(true);
    const QPointer<FishEditor> alive(this);
    Q_EMIT onExpand(index);
    if (alive)
        updateFish(false);
}

void FishEditor::modifyContract()
{
    const QModelIndex index = firstSelectedSpearIndex();
    if (!index.isValid())
        return;
    const QPointer<FishEditor> alive(this);
    {
        const SelectionHold hold(this);
        firstSelectedSpear()->setExpand(false);
    }
    if (alive)
        Q_EMIT onCollaps(index);
    if (alive)
        updateFish(false);
}

void FishEditor::modelDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    Q_UNUSED(bottomRight)
    if (topLeft.column() == 0)
        updateFish(false);
    setModified(true);
}
