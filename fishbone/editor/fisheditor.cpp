// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/fisheditor.h>

#include <QHBoxLayout>
#include <QMimeData>
#include <QMouseEvent>

#include <fishbone/base/followlanguage.h>
#include <fishbone/drawing/drawingaudience.h>
#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/editor/boneselection.h>
#include <fishbone/editor/fisheditor_p.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/editor/viewprint.h>
#include <fishbone/items/expanditem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

namespace {
constexpr int sunkenPanel = 54; ///< QFrame::StyledPanel | QFrame::Sunken

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
    , m_d(std::make_unique<Private>(*this))
{
    registerMetaTypes();
    DrawingAudience::invite();
    setFrameStyle(sunkenPanel);
    m_d->tellThrough(*this);
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
    followLanguage(this, [this] { updateFish(false); }); // the head may show counts
}

FishEditor::~FishEditor()
{
    m_d->end();
    // A model below the editor dies later than this part of it, and must not call it any more.
    const QList<QAbstractItemModel *> models = findChildren<QAbstractItemModel *>();
    for (QAbstractItemModel *model : models)
        model->disconnect(this);
}

GraphicsView *FishEditor::view() const
{
    return m_d->view;
}

FishScene *FishEditor::scene() const
{
    return m_d->drawing.scene();
}

UndoStack *FishEditor::undoStack() const
{
    return m_d->undoStack;
}

QAbstractItemModel *FishEditor::model() const
{
    return m_d->shown.model();
}

void FishEditor::setModel(QAbstractItemModel *model)
{
    m_d->root.setModel(model);
    if (model)
        connect(model, &QAbstractItemModel::dataChanged, this, &FishEditor::modelDataChanged,
                Qt::UniqueConnection);
}

int FishEditor::modelType() const
{
    const FishModel *const model = m_d->shown.fishModel();
    return model ? int(model->modelType()) : 0;
}

QModelIndex FishEditor::rootIndex() const
{
    return m_d->shown.index();
}

SpearItem *FishEditor::headSpear() const
{
    return m_d->drawing.head();
}

QModelIndex FishEditor::spearIndex(SpearItem *spear) const
{
    return spear ? spear->modelIndex() : QModelIndex();
}

FishInfo *FishEditor::currentFishInfo() const
{
    return m_d->shown.document();
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

int FishEditor::directionFor(const SpearItem *parent, int level, int row)
{
    return SpearBuilder::directionFor(parent, level, row);
}

void FishEditor::setRootIndex(const QModelIndex &index)
{
    m_d->root.show(index);
}

void FishEditor::loadFish(const QModelIndex &index)
{
    m_d->root.load(index);
}

void FishEditor::generateSpear(QAbstractItemModel *model, const QModelIndex &index)
{
    m_d->expansion.makeChildren(model, index);
}

void FishEditor::generateAllSubSpear(QAbstractItemModel *model, const QModelIndex &index)
{
    m_d->expansion.makeDescendants(model, index);
}

void FishEditor::generateSpear(const QModelIndex &index, int level, int row, SpearItem *parent)
{
    m_d->expansion.makeBranch(index, level, row, parent);
}

void FishEditor::updateFish(bool rebuild)
{
    m_d->root.update(rebuild);
}

void FishEditor::refreshFish()
{
    m_d->root.refresh();
}

void FishEditor::updateSpearSize()
{
    if (headSpear())
        m_d->drawing.layout().sizeSpears();
}

void FishEditor::updateSpearPostion()
{
    if (headSpear())
        m_d->drawing.layout().placeSpears();
}

void FishEditor::expandorContractAll(bool expand)
{
    m_d->root.expandBones(expand);
}

bool FishEditor::showsOwnItemsOnly() const
{
    return m_d->drawing.isAlone();
}

void FishEditor::modelDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    Q_UNUSED(bottomRight)
    m_d->root.followData(sender(), topLeft);
}

void FishEditor::setLook(DiagramLook::Kind look)
{
    m_d->drawing.choose(look, lookOptions());
    updateFish(false);
}

DiagramLook::Kind FishEditor::look() const
{
    return m_d->drawing.drawing().kind();
}

void FishEditor::setLookOptions(const DiagramLook::Options &options)
{
    if (m_d->drawing.chooseOptions(options))
        updateFish(false);
}

const DiagramLook::Options &FishEditor::lookOptions() const
{
    return m_d->drawing.drawing().options();
}

void FishEditor::contractAll()
{
    expandorContractAll(false);
}

void FishEditor::expandAll()
{
    m_d->expansion.expandAll();
}

void FishEditor::modifyExpandAll()
{
    m_d->expansion.setAll(true);
}

void FishEditor::modifyContractAll()
{
    m_d->expansion.setAll(false);
}

void FishEditor::modifyExpand()
{
    m_d->expansion.setSelected(true);
}

void FishEditor::modifyContract()
{
    m_d->expansion.setSelected(false);
}

int FishEditor::zoomValue() const
{
    return m_d->framing.zoom();
}

int FishEditor::rotateValue() const
{
    return m_d->framing.rotation();
}

void FishEditor::setupMatrix()
{
    m_d->framing.apply();
}

void FishEditor::zoomIn(int level)
{
    m_d->framing.stepZoom(level);
}

void FishEditor::zoomOut(int level)
{
    m_d->framing.stepZoom(-qint64(level));
}

void FishEditor::setZoomValue(int value)
{
    m_d->framing.setZoom(value);
}

void FishEditor::setRotateValue(int value)
{
    m_d->framing.setRotation(value);
}

void FishEditor::zoomFish(int value)
{
    m_d->framing.zoomTo(value, false);
}

void FishEditor::rotateFish(int value)
{
    m_d->framing.rotateTo(value, false);
}

void FishEditor::writeZoom(int value)
{
    m_d->framing.zoomTo(value, true);
}

void FishEditor::writeRotation(int value)
{
    m_d->framing.rotateTo(value, true);
}

void FishEditor::rotateReset()
{
    rotateFish(0);
}

void FishEditor::fullSize()
{
    m_d->framing.showUnscaled();
}

void FishEditor::equalRatio(const QRectF &rect)
{
    m_d->framing.fit(rect);
}

void FishEditor::showEntire()
{
    if (headSpear())
        equalRatio(headSpear()->childrenBoundingRect());
}

void FishEditor::showSelected()
{
    equalRatio(BoneSelection::boundsOf(selectedItems()));
}

void FishEditor::centerView(const QModelIndex &index)
{
    m_d->drawing.center(m_d->root.spearOf(index));
}

void FishEditor::ensureVisible(const QModelIndex &index)
{
    m_d->drawing.reveal(m_d->root.spearOf(index));
}

SpearItem *FishEditor::boneAt(const QPoint &pos) const
{
    return BoneSelection::spearOf(view()->itemAt(pos));
}

void FishEditor::doubleClicked(QMouseEvent *event)
{
    if (event->buttons() == Qt::LeftButton && firstSelectedSpear())
        Q_EMIT editTaskDetail(firstSelectedSpearIndex());
}

void FishEditor::createPopMenu(QMenu &menu, SpearItem *spear)
{
    m_d->menu.fill(menu, spear);
}

void FishEditor::onRightClicked(void *payload)
{
    m_d->menu.show(static_cast<SpearItem *>(payload));
}

void FishEditor::setBoneMenuFiller(const std::function<void(QMenu &, SpearItem *)> &filler)
{
    m_d->menu.setFiller(filler);
}

void FishEditor::print()
{
    printView(*m_d->view, this);
}
