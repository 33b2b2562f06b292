// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QTimer>

class DiagramSession;
class FishEditor;
class QModelIndex;
class SubjectTree;

/**
 * Keeps the tree of documents and the drawing in step, both ways: what is selected, which subject
 * is the current one and so which document is shown, and what is expanded. While the tree is
 * filtered its rows are expanded as the filter wants and say nothing about the drawing.
 */
class TreeSync : public QObject
{
    Q_OBJECT

public:
    TreeSync(DiagramSession *session, SubjectTree *tree, QObject *parent = nullptr);

    /** Expands and collapses the rows of the shown diagram as its bones are. */
    void followExpansion();
    /** As followExpansion(), for the subject at @p index alone. */
    void followBone(const QModelIndex &index);

private:
    void followSelection();
    void collapseRows();
    void selectInDrawing();
    void expandInDrawing(const QModelIndex &row, bool expanded);
    void setRowExpanded(const QModelIndex &index, bool expanded);

    DiagramSession *m_session;
    SubjectTree *m_tree;
    FishEditor *m_editor;
    QTimer m_treeSelection;   ///< runs when the user selected in the tree
    bool m_following = false; ///< what happens now comes from the other side
};
