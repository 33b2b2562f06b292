// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/diagramsession.h>

#include <app/common/busycursor.h>
#include <app/diagram/drawingstate.h>
#include <app/diagram/expansion.h>
#include <app/diagram/modifiedtracker.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/subjectwalk.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/undo/commandgroup.h>
#include <fishbone/undo/editattributes.h>
#include <fishbone/undo/structuralcommands.h>
#include <fishbone/undo/undostack.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <memory>

namespace {

const QLatin1String childrenKey("children"); // of the diagram format, as the next ones
const QLatin1String uuidKey("uuid");
const QLatin1String pidKey("pid");

std::unique_ptr<EditPaste> pastedBelow(FishModel *model, const QModelIndex &target,
                                       const QJsonObject &subjects)
{
    auto command = std::make_unique<EditPaste>(model, target, subjects);
    command->setPasteAsNew(true);
    return command;
}

} // namespace

DiagramSession::DiagramSession(FishModel *model, FishEditor *editor, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_editor(editor)
{
    m_settle.setSingleShot(true);
    connect(&m_settle, &QTimer::timeout, this, &DiagramSession::settle);

    auto *const tracker = new ModifiedTracker(model, this);
    connect(tracker, &ModifiedTracker::changed, this, [this](FishInfo *document) {
        m_changed = document;
        m_sawChange = true;
        touch();
    });
    connect(model, &FishModel::rowsInserted, this,
            [this](const QModelIndex &parentIndex, int first) {
                m_inserted = m_model->index(first, 0, parentIndex);
                touch();
            });
    connect(model, &FishModel::rowsRemoved, this, [this](const QModelIndex &parentIndex) {
        m_removedFrom = parentIndex;
        touch();
    });
    connect(model, &FishModel::modelReset, this, &DiagramSession::touch);
    connect(editor, &FishEditor::copyAvailable, this, &DiagramSession::touch);
    connect(editor, &FishEditor::clipBoardAvailable, this, &DiagramSession::touch);
    connect(editor, &FishEditor::onExpand, this, &DiagramSession::touch);
    connect(editor, &FishEditor::onCollaps, this, &DiagramSession::touch);
    connect(editor, &FishEditor::onExpandAll, this, &DiagramSession::touch);
    connect(editor, &FishEditor::onCollapsAll, this, &DiagramSession::touch);
    connect(editor->undoStack(), &UndoStack::stackChanged, this, &DiagramSession::touch);
    connect(editor->undoStack(), &UndoStack::currentChanged, this, &DiagramSession::touch);
}

FishInfo *DiagramSession::document() const
{
    return m_editor->headSpear() ? m_editor->currentFishInfo() : nullptr;
}

const TreeItem *DiagramSession::container() const
{
    const FishInfo *const shown = document();
    return shown ? shown->treeItem() : nullptr;
}

QString DiagramSession::folder() const
{
    const FishInfo *const shown = document();
    if (shown && !shown->isUntitled())
        return QFileInfo(shown->fileName()).absolutePath();
    return SystemHelper::documentsLocation();
}

QModelIndex DiagramSession::headOf(const FishInfo *document) const
{
    return m_model->index(m_model->fishRow(document), 0);
}

void DiagramSession::touch()
{
    m_settle.start(0);
}

/** Notes whether the document was changed by what the history does not know. */
void DiagramSession::noteOtherChanges()
{
    const UndoStack &stack = *m_editor->undoStack();
    const std::pair<int, int> place(stack.currentIndex(), stack.count());
    const FishInfo *const shown = document();
    const bool isElsewhere = m_sawChange && place == m_place;
    if (isElsewhere || (shown && shown->modified() && stack.isClean()))
        m_isApart = true;
    m_sawChange = false;
    m_place = place;
}

void DiagramSession::markSaved()
{
    m_editor->undoStack()->setClean();
    m_isApart = false;
    noteOtherChanges();
}

void DiagramSession::markApart()
{
    m_isApart = true;
    if (FishInfo *const shown = document())
        shown->setModified(true);
    touch();
}

/** What has to wait until the change that is under way is complete. */
void DiagramSession::settle()
{
    noteOtherChanges();
    // The document that was shown is gone.
    if (!m_editor->headSpear() && !m_model->fishList().isEmpty())
        showDocument(m_model->fishList().constLast());
    Q_EMIT stateChanged();
}

/** The uuid of what is shown as a diagram. */
QString DiagramSession::shownUuid() const
{
    const TreeItem *const root = m_model->getTreeItem(m_editor->rootIndex());
    return root ? root->uuid() : QString();
}

/** Shows the diagram below @p root as it was left. */
void DiagramSession::showRoot(const QModelIndex &root)
{
    if (m_editor->headSpear())
        m_left.insert(shownUuid(), DrawingState::capture(*m_editor));
    m_editor->setRootIndex(root);
    if (const auto left = m_left.constFind(shownUuid()); left != m_left.constEnd())
        left->restore(*m_editor);
    touch();
    Q_EMIT drawingRebuilt();
}

void DiagramSession::showDocument(FishInfo *document)
{
    const QModelIndex head = headOf(document);
    if (document != this->document() && head.isValid())
        showRoot(head);
}

void DiagramSession::showAsDiagram(const QModelIndex &index)
{
    TreeItem *const subject = m_model->getTreeItem(index);
    FishInfo *const owner = subject ? m_model->fishOf(subject) : nullptr;
    if (!owner)
        return;
    subject->ensureUuid();
    showDocument(owner);
    owner->addFishToHistory(index);
    showRoot(index);
}

/** The first subject of @p document with that uuid. */
QModelIndex DiagramSession::indexInDocument(const FishInfo *document, const QString &uuid) const
{
    QModelIndex found;
    visitSubjects(document->treeItem(), [&](const TreeItem *item) {
        if (item->uuid() == uuid)
            found = m_model->indexFromItem(item);
        return !found.isValid();
    });
    return found;
}

QModelIndexList DiagramSession::visited() const
{
    QModelIndexList indexes;
    const FishInfo *const shown = document();
    const QStringList uuids = shown ? shown->fishHistorys() : QStringList();
    for (const QString &uuid : uuids) {
        if (const QModelIndex index = indexInDocument(shown, uuid); index.isValid())
            indexes.append(index);
    }
    return indexes;
}

bool DiagramSession::canGoBack() const
{
    return document() && m_editor->rootIndex() != headOf(document());
}

void DiagramSession::goBack()
{
    if (!canGoBack())
        return;
    const QModelIndexList earlier = visited();
    const int current = earlier.indexOf(m_editor->rootIndex());
    showRoot(current > 0 ? earlier.at(current - 1) : headOf(document()));
}

void DiagramSession::showWhole()
{
    if (canGoBack())
        showRoot(headOf(document()));
}

/** Makes sure that the subject at @p index has a visible spear; false when it cannot have one. */
bool DiagramSession::reveal(const QModelIndex &index)
{
    const TreeItem *const subject = m_model->getTreeItem(index);
    FishInfo *const owner = subject ? m_model->fishOf(subject) : nullptr;
    if (!owner)
        return false;
    showDocument(owner);
    const TreeItem *const root = m_model->getTreeItem(m_editor->rootIndex());
    if (root != subject && !root->isAncestorOf(subject))
        showWhole();

    QList<const TreeItem *> above; // the nearest first
    for (const TreeItem *item = subject->parent(); item && item->spear() != m_editor->headSpear();
         item = item->parent())
        above.append(item);
    bool expanded = false;
    while (!above.isEmpty()) {
        SpearItem *const spear = above.takeLast()->spear();
        if (spear && !spear->isExpand()) {
            Expansion::setExpanded(*m_editor, *spear, true);
            expanded = true;
        }
    }
    if (expanded) {
        m_editor->updateFish(false);
        Q_EMIT drawingRebuilt();
    }
    return subject->spear() != nullptr;
}

QModelIndexList DiagramSession::selected() const
{
    QModelIndexList indexes;
    const QList<QGraphicsItem *> items = m_editor->selectedItems();
    for (QGraphicsItem *item : items) {
        const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item);
        if (spear && spear->treeItem())
            indexes.append(spear->modelIndex());
    }
    return indexes;
}

void DiagramSession::select(const QModelIndex &index)
{
    select(QModelIndexList{index});
}

void DiagramSession::select(const QModelIndexList &indexes)
{
    QList<QPersistentModelIndex> shown;
    for (const QModelIndex &index : indexes) {
        if (reveal(index))
            shown.append(index);
    }
    QList<SpearItem *> spears;
    for (const QPersistentModelIndex &index : qAsConst(shown)) {
        if (SpearItem *const spear = m_model->getTreeItem(index)->spear())
            spears.append(spear);
    }
    m_editor->selectSpears(spears);
    touch();
    if (!shown.isEmpty())
        m_editor->ensureVisible(shown.constLast());
}

void DiagramSession::restore(const DrawingState &state)
{
    m_editor->expandorContractAll(false);
    state.restore(*m_editor);
    touch();
    Q_EMIT drawingRebuilt();
}

QModelIndex DiagramSession::insert(const std::function<void()> &edit)
{
    m_inserted = QModelIndex();
    edit();
    const QPersistentModelIndex inserted = m_inserted;
    if (inserted.isValid())
        select(inserted);
    return inserted;
}

void DiagramSession::removeSelected(bool cut)
{
    const QModelIndex first = m_editor->firstSelectedSpearIndex();
    const QPersistentModelIndex parent = first.parent();
    const int row = first.row();
    const BusyCursor busy(container());
    if (cut)
        m_editor->cut();
    else
        m_editor->del();
    if (!parent.isValid() || m_editor->hasSelection())
        return;
    const int left = m_model->rowCount(parent);
    select(left > 0 ? m_model->index(qMin(row, left - 1), 0, parent) : QModelIndex(parent));
}

/** Runs @p change, after which the drawing is rebuilt, and gives the new one the look of the old.
 * A change in another document brings that into view. What was selected and is gone gives the
 * selection to what came or to what is left. */
void DiagramSession::preserve(const std::function<void()> &change)
{
    const BusyCursor busy(container());
    const DrawingState state = DrawingState::capture(*m_editor);
    const bool hadSelection = m_editor->hasSelection();
    m_changed.clear();
    m_inserted = QModelIndex();
    m_removedFrom = QModelIndex();
    change();
    if (m_changed && m_changed != document())
        showDocument(m_changed);
    else
        state.restore(*m_editor);
    touch();
    Q_EMIT drawingRebuilt();
    if (hadSelection && !m_editor->hasSelection())
        select(m_inserted.isValid() ? m_inserted : m_removedFrom);
}

void DiagramSession::paste()
{
    pasteBy([this] { m_editor->paste(); });
}

void DiagramSession::paste(const QJsonObject &subjects)
{
    const QModelIndex target = m_editor->firstSelectedSpearIndex();
    if (!target.isValid())
        return;
    const QJsonArray pasted = subjects.value(childrenKey).toArray();
    const bool isHead = pasted.size() == 1 && isUntouched();
    pasteBy([&] {
        std::unique_ptr<UndoCommand> command;
        if (isHead)
            command = headFrom(pasted.at(0).toObject());
        else
            command = pastedBelow(m_model, target, subjects);
        if (m_editor->run(std::move(command)))
            m_editor->updateFish(true);
    });
    if (isHead)
        select(headOf(document()));
}

/** Whether there is nothing in the document yet but the head that it began with. */
bool DiagramSession::isUntouched() const
{
    const FishInfo *const shown = document();
    const TreeItem *const head = shown ? shown->treeItem()->childAtIndex(0) : nullptr;
    return head && head->childCount() == 0 && shown->isUntitled() && !shown->modified();
}

/** A step that makes @p subject the head, and what is below it that of the head. */
std::unique_ptr<UndoCommand> DiagramSession::headFrom(QJsonObject subject) const
{
    const QModelIndex head = headOf(document());
    TreeItem &item = *m_model->getTreeItem(head);
    item.ensureUuid();
    QJsonArray below = subject.value(childrenKey).toArray();
    for (QJsonValueRef child : below) {
        QJsonObject object = child.toObject();
        object.insert(pidKey, item.uuid());
        child = object;
    }
    for (const QLatin1String key : {childrenKey, uuidKey, pidKey})
        subject.remove(key);
    auto paste = pastedBelow(m_model, head, {{childrenKey, below}});
    auto step = std::make_unique<CommandGroup>(paste->name());
    step->add(
        std::make_unique<EditAttributes>(m_model, head, EditAttributes::stateOf(item), subject));
    step->add(std::move(paste));
    return step;
}

/** Runs @p change, which pastes, and selects what was pasted. */
void DiagramSession::pasteBy(const std::function<void()> &change)
{
    preserve(change);
    if (const QPersistentModelIndex pasted = m_inserted; pasted.isValid())
        select(pasted);
}

void DiagramSession::undo()
{
    jumpTo(m_editor->undoStack()->currentIndex() - 1);
}

void DiagramSession::redo()
{
    jumpTo(m_editor->undoStack()->currentIndex() + 1);
}

void DiagramSession::jumpTo(int index)
{
    noteOtherChanges();
    preserve([this, index] {
        if (!m_editor->undoStack()->setCurrentIndex(index))
            return;
        m_editor->updateFish(true);
        if (!m_changed) // a link, say, of which the model tells nobody
            m_editor->setModified(true);
    });
    FishInfo *const shown = document();
    if (shown && !m_isApart && m_editor->undoStack()->isClean())
        shown->setModified(false);
}
