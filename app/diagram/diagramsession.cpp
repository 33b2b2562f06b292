// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/diagramsession.h>

#include <app/common/busycursor.h>
#include <app/diagram/drawingstate.h>
#include <app/diagram/expansion.h>
#include <app/diagram/modelchanges.h>
#include <app/diagram/pastestep.h>

#include <fishbone/model/systemhelper.h>
#include <fishbone/undo/undocommand.h>
#include <fishbone/undo/undostack.h>

#include <QFileInfo>
#include <QJsonObject>

DiagramSession::DiagramSession(FishModel *model, FishEditor *editor, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_editor(editor)
    , m_changes(new ModelChanges(model, this))
    , m_saved(std::make_unique<SavedState>(editor))
    , m_visits(std::make_unique<DiagramVisits>(model, editor))
{
    m_settle.setSingleShot(true);
    connect(&m_settle, &QTimer::timeout, this, &DiagramSession::settle);

    connect(m_changes, &ModelChanges::happened, this, &DiagramSession::touch);
    connect(m_changes, &ModelChanges::documentChanged, this, [this] { m_saved->noteChange(); });
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

void DiagramSession::markSaved()
{
    m_saved->markSaved(document());
}

void DiagramSession::markApart()
{
    m_saved->markApart();
    if (FishInfo *const shown = document())
        shown->setModified(true);
    touch();
}

/** What has to wait until the change that is under way is complete. */
void DiagramSession::settle()
{
    m_saved->look(document());
    // The document that was shown is gone.
    if (!m_editor->headSpear() && !m_model->fishList().isEmpty())
        showDocument(m_model->fishList().constLast());
    Q_EMIT stateChanged();
}

/** Shows the diagram below @p root as it was left. */
void DiagramSession::showRoot(const QModelIndex &root)
{
    m_visits->show(root);
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

    if (Expansion::expandAbove(*m_editor, *subject)) {
        m_editor->updateFish(false);
        Q_EMIT drawingRebuilt();
    }
    return subject->spear() != nullptr;
}

void DiagramSession::select(const QModelIndexList &indexes)
{
    QList<QPersistentModelIndex> shown;
    for (const QModelIndex &index : indexes) {
        if (reveal(index))
            shown.append(index);
    }
    SelectedSubjects::select(*m_editor, *m_model, shown);
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
    m_changes->forget();
    edit();
    const QPersistentModelIndex inserted = m_changes->inserted();
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
    m_changes->forget();
    change();
    FishInfo *const changed = m_changes->document();
    if (changed && changed != document())
        showDocument(changed);
    else
        state.restore(*m_editor);
    touch();
    Q_EMIT drawingRebuilt();
    if (hadSelection && !m_editor->hasSelection())
        select(m_changes->inserted().isValid() ? m_changes->inserted() : m_changes->removedFrom());
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
    const FishInfo *const shown = document();
    const bool isHead = PasteStep::replacesHead(shown, subjects);
    pasteBy([&] {
        if (m_editor->run(isHead ? PasteStep::ofHead(m_model, headOf(shown), subjects)
                                 : PasteStep::below(m_model, target, subjects)))
            m_editor->updateFish(true);
    });
    if (isHead)
        select(headOf(document()));
}

/** Runs @p change, which pastes, and selects what was pasted. */
void DiagramSession::pasteBy(const std::function<void()> &change)
{
    preserve(change);
    if (const QPersistentModelIndex pasted = m_changes->inserted(); pasted.isValid())
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
    m_saved->look(document());
    preserve([this, index] {
        if (!m_editor->undoStack()->setCurrentIndex(index))
            return;
        m_editor->updateFish(true);
        if (!m_changes->document()) // a link, say, of which the model tells nobody
            m_editor->setModified(true);
    });
    FishInfo *const shown = document();
    if (shown && m_saved->isSaved())
        shown->setModified(false);
}
