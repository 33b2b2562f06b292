// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/treesync.h>

#include <app/diagram/diagramsession.h>
#include <app/diagram/expansion.h>
#include <app/panels/subjectproxymodel.h>
#include <app/panels/subjecttree.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/subjectwalk.h>

#include <QScopedValueRollback>

TreeSync::TreeSync(DiagramSession *session, SubjectTree *tree, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_tree(tree)
    , m_editor(session->editor())
{
    connect(m_editor, &FishEditor::copyAvailable, this, &TreeSync::followSelection);
    connect(session, &DiagramSession::drawingRebuilt, this, &TreeSync::followExpansion);
    connect(m_editor, &FishEditor::onExpand, this,
            [this](const QModelIndex &index) { setRowExpanded(index, true); });
    connect(m_editor, &FishEditor::onCollaps, this,
            [this](const QModelIndex &index) { setRowExpanded(index, false); });
    connect(m_editor, &FishEditor::onExpandAll, this, &TreeSync::followExpansion);
    connect(m_editor, &FishEditor::onCollapsAll, this, &TreeSync::followExpansion);

    // Not at once: the selection also changes in the middle of a removal of rows.
    m_treeSelection.setSingleShot(true);
    connect(&m_treeSelection, &QTimer::timeout, this, &TreeSync::selectInDrawing);
    connect(tree->view()->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!m_following)
            m_treeSelection.start(0);
    });
    connect(tree->view(), &QTreeView::expanded, this,
            [this](const QModelIndex &row) { expandInDrawing(row, true); });
    connect(tree->view(), &QTreeView::collapsed, this,
            [this](const QModelIndex &row) { expandInDrawing(row, false); });
    // Rows that the filter hides lose their selection; the drawing keeps it.
    connect(tree, &SubjectTree::filterAboutToChange, this, [this] { m_following = true; });
    connect(tree, &SubjectTree::filterChanged, this, [this] {
        m_following = false;
        if (!m_tree->isFiltered())
            collapseRows();
        followExpansion();
        followSelection();
    });
}

void TreeSync::followSelection()
{
    if (m_following)
        return;
    const QScopedValueRollback<bool> guard(m_following, true);
    m_tree->selectSubjects(m_session->selected());
}

void TreeSync::selectInDrawing()
{
    const QScopedValueRollback<bool> guard(m_following, true);
    m_session->select(m_tree->selectedSubjects());
}

void TreeSync::setRowExpanded(const QModelIndex &index, bool expanded)
{
    const QScopedValueRollback<bool> guard(m_following, true);
    if (!m_tree->isFiltered())
        m_tree->view()->setExpanded(m_tree->proxy()->mapFromSource(index), expanded);
}

void TreeSync::followExpansion()
{
    SpearItem *const head = m_editor->headSpear();
    if (!head || m_tree->isFiltered())
        return;
    const QScopedValueRollback<bool> guard(m_following, true);
    m_tree->view()->delayLayout();
    // The rows above the head, too, when a part of a diagram is shown as a diagram of its own.
    for (QModelIndex index = head->modelIndex(); index.isValid(); index = index.parent())
        m_tree->view()->expand(m_tree->proxy()->mapFromSource(index));
    visitSubjects(head->treeItem(), [this, head](const TreeItem *subject) {
        if (subject == head->treeItem() || subject->childCount() == 0)
            return true;
        const QModelIndex row =
            m_tree->proxy()->mapFromSource(m_session->model()->indexFromItem(subject));
        m_tree->view()->setExpanded(row, subject->spear() && subject->spear()->isExpand());
        return true;
    });
}

/** Undoes what the filter has expanded. */
void TreeSync::collapseRows()
{
    const QScopedValueRollback<bool> guard(m_following, true);
    m_tree->view()->collapseAll();
}

void TreeSync::followBone(const QModelIndex &index)
{
    const TreeItem *const subject = m_session->model()->getTreeItem(index);
    const SpearItem *const spear = subject ? subject->spear() : nullptr;
    if (spear && !spear->isHeader() && subject->childCount() > 0)
        setRowExpanded(index, spear->isExpand());
}

void TreeSync::expandInDrawing(const QModelIndex &row, bool expanded)
{
    if (m_following || m_tree->isFiltered())
        return;
    const QModelIndex index = m_tree->proxy()->mapToSource(row);
    const TreeItem *const subject = m_session->model()->getTreeItem(index);
    SpearItem *const spear = subject ? subject->spear() : nullptr;
    // The head is never contracted, and what is not drawn yet is drawn when its turn comes.
    if (!spear || spear->isHeader() || spear->isExpand() == expanded)
        return;
    Expansion::setExpanded(*m_editor, *spear, expanded);
    m_editor->updateFish(false);
    m_session->touch();
}
