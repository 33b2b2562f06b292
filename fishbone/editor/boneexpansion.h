// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndex>
#include <QObject>

class EditorCalls;
class ShownDrawing;
class ShownRoot;
class ShownSubject;
class SpearItem;

/** Expands and contracts the bones of a drawing. Only what a user asks for is told. */
class BoneExpansion : public QObject
{
    Q_OBJECT

public:
    /** That of @p drawing, which @p root shows; all must live as long. */
    BoneExpansion(const ShownSubject &shown, ShownDrawing &drawing, ShownRoot &root,
                  EditorCalls &calls);

    /** Makes the missing spears of the children of @p index, as far as @p model is the editor's. */
    void makeChildren(const QAbstractItemModel *model, const QModelIndex &index) const;
    /** Likewise those of all its descendants. */
    void makeDescendants(const QAbstractItemModel *model, const QModelIndex &index) const;
    /** Makes new spears for @p index, standing on @p level in @p row below @p parent, and for all
     * its descendants, all contracted. */
    void makeBranch(const QModelIndex &index, int level, int row, SpearItem *parent) const;
    /** Makes all missing spears and expands every one. */
    void expandAll();
    /** Expands or contracts every spear there is, and tells. */
    void setAll(bool expand);
    /** Expands or contracts the first selected spear, tells and lays out. */
    void setSelected(bool expand);

Q_SIGNALS:
    /** The subject @p index was expanded. */
    void expanded(const QModelIndex &index);
    /** The subject @p index was contracted. */
    void contracted(const QModelIndex &index);
    /** Everything was expanded. */
    void allExpanded();
    /** Everything was contracted. */
    void allContracted();

private:
    const ShownSubject &m_shown;
    ShownDrawing &m_drawing;
    ShownRoot &m_root;
    EditorCalls &m_calls;
};
