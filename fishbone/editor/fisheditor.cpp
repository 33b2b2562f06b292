// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/fisheditor.h>

#include <algorithm>

#include <QAbstractProxyModel>
#include <QHBoxLayout>
#include <QMimeData>
#include <QVector>

#include <fishbone/base/followlanguage.h>
#include <fishbone/drawing/drawingaudience.h>
#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/editor/editorcall.h>
#include <fishbone/editor/fisheditor_p.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/expanditem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/subjectwalk.h>
#include <fishbone/undo/undostack.h>

namespace {
constexpr int sunkenPanel = 54; ///< QFrame::StyledPanel | QFrame::Sunken

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

FishEditor::Private::Private(FishEditor *editor)
    : undoStack(new UndoStack(editor))
    , view(new GraphicsView(editor))
    , stackOwner(editor)
    , framing(*view)
    , menu(*editor)
    , autosave(editor, [editor] { editor->saveTmpFile(); })
{
    undoStack->setOwner(&stackOwner);
}

FishEditor::FishEditor(QWidget *parent)
    : QFrame(parent)
    , m_d(std::make_unique<Private>(this))
{
    registerMetaTypes();
    DrawingAudience::invite();
    setFrameStyle(sunkenPanel);
    connect(view(), &GraphicsView::rightClicked, this, &FishEditor::onRightClicked);
    connect(view(), &GraphicsView::moveSpear, this, &FishEditor::moveItems);
    // Queued, so that a drop is handled when the drag has ended.
    connect(view(), &GraphicsView::dropTo, this, &FishEditor::onDropTo, Qt::QueuedConnection);
    auto *const layout = new QHBoxLayout(this);
    layout->addWidget(view());
    connect(scene(), &FishScene::selectionChanged, this, &FishEditor::sceneSelectionChanged);
    view()->setScene(scene());
    setupMatrix();
    ExpandItem::setFishEditor(this);
    startSaveTmpFileTimer();
    livingEditors().append(this);
    followLanguage(this, [this] { updateFish(false); }); // the head may show counts
}

FishEditor::~FishEditor()
{
    livingEditors().removeOne(this);
    m_d->undoStack->setOwner(nullptr);
    for (Call *call : qAsConst(m_d->calls))
        call->abandon();
    // A model below the editor dies later than this part of it, and must not call it any more.
    const QList<QAbstractItemModel *> models = findChildren<QAbstractItemModel *>();
    for (QAbstractItemModel *model : models)
        model->disconnect(this);
    // The scene goes first and reports nothing more: neither host nor view shall hear of the
    // selection that dies with it.
    m_d->scene->blockSignals(true);
    m_d->headSpear = SpearPointer();
    m_d->view->setScene(nullptr);
    m_d->scene.reset();
    // Its timer is a child and must not find this part of the editor gone.
    m_d->autosave.setInterval(0);
}

GraphicsView *FishEditor::view() const
{
    return m_d->view;
}

FishScene *FishEditor::scene() const
{
    return m_d->scene.get();
}

UndoStack *FishEditor::undoStack() const
{
    return m_d->undoStack;
}

QAbstractItemModel *FishEditor::model() const
{
    return m_d->model;
}

QModelIndex FishEditor::rootIndex() const
{
    return m_d->rootIndex;
}

SpearItem *FishEditor::headSpear() const
{
    return m_d->headSpear.get();
}

void FishEditor::startSaveTmpFileTimer()
{
    m_d->autosave.start();
}

void FishEditor::setAutosaveInterval(int ms)
{
    m_d->autosave.setInterval(ms);
}

int FishEditor::autosaveInterval() const
{
    return m_d->autosave.interval();
}

void FishEditor::saveTmpFile()
{
    if (FishInfo *const document = currentFishInfo())
        document->saveTmpFile();
}

FishModel *FishEditor::fishModel() const
{
    return qobject_cast<FishModel *>(m_d->model.data());
}

int FishEditor::modelType() const
{
    const FishModel *const model = fishModel();
    return model ? int(model->modelType()) : 0;
}

void FishEditor::setModel(QAbstractItemModel *model)
{
    m_d->model = model;
    if (model)
        connectModel(model);
}

QModelIndex FishEditor::spearIndex(SpearItem *spear) const
{
    return spear ? spear->modelIndex() : QModelIndex();
}

/// The index of the editor's model that \a index, of any model, stands for; invalid for none.
QModelIndex FishEditor::ownIndex(QModelIndex index) const
{
    while (index.isValid() && index.model() != m_d->model) {
        const auto *const proxy = qobject_cast<const QAbstractProxyModel *>(index.model());
        index = proxy ? proxy->mapToSource(index) : QModelIndex();
    }
    return index;
}

/// The spear of a subject in this editor's own scene.
SpearItem *FishEditor::spearOf(const QModelIndex &index) const
{
    const FishModel *const model = fishModel();
    const TreeItem *const subject = model ? model->getTreeItem(ownIndex(index)) : nullptr;
    SpearItem *const spear = subject ? subject->spear() : nullptr;
    return spear && spear->scene() == m_d->scene.get() ? spear : nullptr;
}

FishInfo *FishEditor::currentFishInfo() const
{
    const FishModel *const model = fishModel();
    // What is shown may come from a model set earlier, whose rows are not those of this one.
    if (!model || !m_d->rootIndex.isValid() || m_d->rootIndex.model() != model)
        return nullptr;
    QModelIndex top = m_d->rootIndex;
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
    m_d->headSpear = SpearPointer();
    const Call call(this);
    {
        const SelectionSilence silence(m_d->scene.get());
        m_d->scene->clear();
    }
    DrawingAudience::drawingChanged(m_d->view);
}

void FishEditor::unlinkShownSubjects()
{
    const FishModel *const model = fishModel();
    if (!model || !m_d->rootIndex.isValid() || m_d->rootIndex.model() != model)
        return;
    visitSubjects(model->getTreeItem(m_d->rootIndex), [](TreeItem *subject) {
        subject->setSpear(nullptr, QModelIndex());
        return true;
    });
}

void FishEditor::takeOverFromOtherEditors()
{
    const FishInfo *const document = currentFishInfo();
    QVector<QPointer<FishEditor>> editors; // which listeners of the others may end
    for (FishEditor *editor : qAsConst(livingEditors()))
        editors.append(editor);
    const QPointer<FishEditor> alive(this);
    for (const QPointer<FishEditor> &other : qAsConst(editors)) {
        if (!alive || !other || other == this || other->m_d->model != m_d->model ||
            other->currentFishInfo() != document)
            continue;
        other->m_d->shown = ShownRoot();
        const Call call(other);
        other->showNothing();
        other->m_d->rootIndex = QModelIndex();
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
    const QModelIndex own = fishModel() ? ownIndex(index) : QModelIndex();
    const QPersistentModelIndex root = own.sibling(own.row(), 0);
    const Call call(this); // until the new drawing stands
    unlinkShownSubjects();
    showNothing();
    if (!root.isValid())
        return;
    m_d->rootIndex = root;
    takeOverFromOtherEditors();
    if (!call.isAlive() || !root.isValid() || root.model() != m_d->model)
        return;
    rememberShownRoot();
    loadFish(root);
    expandorContractAll(false);
    centerView(root);
    if (call.isAlive()) // whoever hears of the scroll bars
        ensureVisible(root);
}

void FishEditor::loadFish(const QModelIndex &index)
{
    const FishModel *const model = fishModel();
    const QModelIndex own = ownIndex(index);
    if (!model || !own.isValid())
        return;
    m_d->headSpear = SpearBuilder(*model).buildHead(own);
    m_d->scene->addItem(headSpear());
}

void FishEditor::generateSpear(QAbstractItemModel *model, const QModelIndex &index)
{
    const auto *const subjects = qobject_cast<FishModel *>(model);
    const QModelIndex own = ownIndex(index);
    if (subjects && own.model() == subjects)
        SpearBuilder(*subjects).buildChildren(own);
}

void FishEditor::generateAllSubSpear(QAbstractItemModel *model, const QModelIndex &index)
{
    const auto *const subjects = qobject_cast<FishModel *>(model);
    const QModelIndex own = ownIndex(index);
    if (subjects && own.model() == subjects)
        SpearBuilder(*subjects).buildDescendants(own);
}

void FishEditor::generateSpear(const QModelIndex &index, int level, int row, SpearItem *parent)
{
    const FishModel *const model = fishModel();
    const QModelIndex own = ownIndex(index);
    if (model && own.isValid())
        SpearBuilder(*model).buildSubtree(own, level, row, parent, headSpear());
}

void FishEditor::updateFish(bool rebuild)
{
    const Call call(this);
    if (rebuild) {
        setRootIndex(rootIndex());
    } else if (headSpear() && !headSpear()->treeItem()) {
        // The subject left in a way that nobody announced. If it died, so did what the index has.
        if (const FishModel *const model = fishModel();
            model && !model->contains(m_d->shown.subject))
            m_d->rootIndex = QModelIndex();
        showNothing();
    } else if (headSpear()) {
        updateHeadText();
        {
            const SelectionSilence silence(m_d->scene.get()); // what is hidden is not selected
            m_d->drawing.update(headSpear());
        }
        DrawingAudience::drawingChanged(m_d->view);
        return;
    }
    if (!call.isAlive())
        return;
    if (FishInfo *const document = currentFishInfo())
        document->updateNoParentNodeCount();
}

bool FishEditor::showsOwnItemsOnly() const
{
    return m_d->drawing.isAlone(*m_d->scene, headSpear());
}

void FishEditor::setLook(DiagramLook::Kind look)
{
    m_d->drawing.choose(look, lookOptions());
    updateFish(false);
}

DiagramLook::Kind FishEditor::look() const
{
    return m_d->drawing.kind();
}

void FishEditor::setLookOptions(const DiagramLook::Options &options)
{
    if (options == lookOptions())
        return;
    m_d->drawing.choose(look(), options);
    updateFish(false);
}

const DiagramLook::Options &FishEditor::lookOptions() const
{
    return m_d->drawing.options();
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
    const SelectionSilence silence(m_d->scene.get());
    m_d->drawing.layout(headSpear()).refreshSpears();
}

void FishEditor::updateSpearSize()
{
    if (headSpear())
        m_d->drawing.layout(headSpear()).sizeSpears();
}

void FishEditor::updateSpearPostion()
{
    if (headSpear())
        m_d->drawing.layout(headSpear()).placeSpears();
}

void FishEditor::expandorContractAll(bool expand)
{
    const Call call(this);
    if (headSpear()) {
        const SelectionSilence silence(m_d->scene.get());
        m_d->drawing.layout(headSpear()).expandBones(expand);
    }
    updateFish(false);
}

void FishEditor::contractAll()
{
    expandorContractAll(false);
}

void FishEditor::expandAll()
{
    const Call call(this);
    if (headSpear())
        generateAllSubSpear(m_d->model, headSpear()->modelIndex());
    expandorContractAll(true);
}

void FishEditor::modifyExpandAll()
{
    const Call call(this);
    expandorContractAll(true);
    Q_EMIT onExpandAll();
}

void FishEditor::modifyContractAll()
{
    const Call call(this);
    expandorContractAll(false);
    Q_EMIT onCollapsAll();
}

void FishEditor::modifyExpand()
{
    expandSelected(true, &FishEditor::onExpand);
}

void FishEditor::modifyContract()
{
    expandSelected(false, &FishEditor::onCollaps);
}

void FishEditor::expandSelected(bool expand, void (FishEditor::*report)(const QModelIndex &))
{
    const QModelIndex index = firstSelectedSpearIndex();
    if (!index.isValid())
        return;
    const Call call(this);
    firstSelectedSpear()->setExpand(expand);
    Q_EMIT(this->*report)(index);
    if (call.isAlive())
        updateFish(false);
}

void FishEditor::modelDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    Q_UNUSED(bottomRight)
    const auto *const told = qobject_cast<const QAbstractItemModel *>(sender());
    if (told && told != m_d->model)
        return; // one that was set earlier
    const Call call(this);
    // Found first: another listener may have ended the subject, and the layout need not know it.
    const FishModel *const model = fishModel();
    const QPointer<FishInfo> document =
        model && topLeft.isValid() ? model->fishOfTold(ownIndex(topLeft)) : currentFishInfo();
    const auto &calls = m_d->calls;
    const bool isLaidOutLater =
        std::any_of(calls.cbegin(), calls.cend(), [](const Call *c) { return c->laysOut(); });
    if (topLeft.column() == 0 && !isLaidOutLater)
        updateFish(false);
    if (document)
        document->setModified(true);
}
