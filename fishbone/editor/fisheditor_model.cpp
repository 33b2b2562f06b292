// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of FishEditor that follows what happens to the model underneath it.

#include <fishbone/editor/fisheditor.h>

#include <fishbone/editor/fisheditor_p.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

void FishEditor::connectModel(QAbstractItemModel *model)
{
    // Unique, so that a model that is set twice is not heard twice.
    using Model = QAbstractItemModel;
    connect(model, &Model::dataChanged, this, &FishEditor::modelDataChanged, Qt::UniqueConnection);
    connect(model, &Model::rowsAboutToBeRemoved, this, &FishEditor::forgetRemovedRoot,
            Qt::UniqueConnection);
    connect(model, &Model::rowsRemoved, this, &FishEditor::forgetLostRoot, Qt::UniqueConnection);
    connect(model, &Model::rowsInserted, this, &FishEditor::showReturnedRoot, Qt::UniqueConnection);
    connect(model, &Model::rowsMoved, this, &FishEditor::followMove, Qt::UniqueConnection);
    connect(model, &Model::modelReset, this, &FishEditor::followReset, Qt::UniqueConnection);
    connect(model, &Model::layoutChanged, this, &FishEditor::followHead, Qt::UniqueConnection);
    connect(model, &QObject::destroyed, this, &FishEditor::forgetDestroyedModel,
            Qt::UniqueConnection);
}

bool FishEditor::isListed(const FishInfo *document) const
{
    const FishModel *const model = fishModel();
    return model && document && model->fishList().contains(const_cast<FishInfo *>(document));
}

void FishEditor::rememberShownRoot()
{
    m_d->rootRemoved = false;
    m_d->shown.document = currentFishInfo();
    m_d->shown.subject = fishModel()->getTreeItem(m_d->rootIndex);
    m_d->shown.isHead = !m_d->rootIndex.parent().isValid();
}

/// Where the root that was shown last stands now; invalid when it is not in the model.
QModelIndex FishEditor::rememberedRoot() const
{
    const FishModel *const model = fishModel();
    if (!isListed(m_d->shown.document))
        return {};
    if (m_d->shown.isHead)
        return model->index(model->fishList().indexOf(m_d->shown.document), 0);
    // Compared only until it is known to be alive.
    return model->contains(m_d->shown.subject) ? model->indexFromItem(m_d->shown.subject)
                                               : QModelIndex();
}

void FishEditor::forgetRemovedRoot(const QModelIndex &parent, int first, int last)
{
    if (sender() != m_d->rootIndex.model())
        return; // also when nothing is shown, or what is shown came from a model set earlier
    QModelIndex above = m_d->rootIndex;
    while (above.isValid() && above.parent() != parent)
        above = above.parent();
    if (!above.isValid() || above.row() < first || above.row() > last)
        return;
    m_d->rootRemoved = true;
    m_d->removal = std::make_unique<Call>(this); // nobody shall hear before the rows are gone
    showNothing();
}

/// Shows nothing any more when a listener of the announcement has drawn what was to go.
void FishEditor::forgetLostRoot()
{
    const std::unique_ptr<Call> removal = std::move(m_d->removal); // which tells at the end
    if (!headSpear() || headSpear()->modelIndex().isValid())
        return;
    m_d->rootRemoved = true;
    showNothing();
}

void FishEditor::showReturnedRoot(const QModelIndex &parent)
{
    if (sender() != m_d->model || parent.isValid() || !m_d->rootRemoved)
        return;
    const QModelIndex root = rememberedRoot();
    if (root.isValid())
        setRootIndex(root);
}

void FishEditor::followReset()
{
    if (sender() != m_d->model || !headSpear())
        return;
    // A reset makes every index invalid, whether or not the subject is still there. One that is
    // keeps its spear; a document that was loaded anew has other subjects.
    const FishModel *const model = fishModel();
    if (model && model->contains(m_d->shown.subject) &&
        m_d->shown.subject->spear() == headSpear()) {
        m_d->rootIndex = model->indexFromItem(m_d->shown.subject);
        updateFish(false);
    } else {
        showNothing();
    }
}

void FishEditor::followHead()
{
    if (sender() != m_d->model || !m_d->shown.isHead)
        return;
    const QModelIndex head = rememberedRoot();
    if (head.isValid() && fishModel()->getTreeItem(head) != m_d->shown.subject)
        setRootIndex(head);
}

/// The shown root has moved into another document.
void FishEditor::followToAnotherDocument()
{
    if (isShownByAnotherEditor(currentFishInfo())) {
        // What moved into that editor's document is drawn there from now on.
        m_d->rootIndex = QModelIndex();
        m_d->rootRemoved = true;
        showNothing();
    } else if (!m_d->shown.isHead) { // a head comes back as the head of its old document
        m_d->shown.document = currentFishInfo();
    }
}

void FishEditor::followMove()
{
    if (sender() != m_d->model)
        return;
    if (m_d->rootRemoved && m_d->shown.isHead) {
        const QModelIndex head = rememberedRoot();
        if (head.isValid())
            setRootIndex(head);
    } else if (headSpear() && currentFishInfo() != m_d->shown.document) {
        followToAnotherDocument();
    }
}

void FishEditor::forgetDestroyedModel()
{
    if (m_d->rootIndex.isValid())
        return; // another one, set earlier
    m_d->shown = ShownRoot();
    showNothing();
}
