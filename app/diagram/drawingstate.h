// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QSet>
#include <QString>

class FishEditor;
class SpearItem;
class TreeItem;

/**
 * What a user has made of a drawing without changing the diagram: which bones are expanded, what is
 * selected and where the view stands. It outlives a rebuild of the drawing, which contracts
 * everything.
 *
 * Subjects are remembered by address, only ever compared, and by uuid, since a subject that undo
 * brings back is another object.
 */
class DrawingState
{
public:
    /** The state of what @p editor shows. Linear in the number of spears. */
    static DrawingState capture(const FishEditor &editor);

    /** Gives the drawing that @p editor shows this state, as far as its subjects are known. */
    void restore(FishEditor &editor) const;

    /** This state, but with the bones of @p subjects expanded and no others. */
    DrawingState expanding(const QSet<const TreeItem *> &subjects) const;
    /** This state, but with the bones expanded that are so in @p other. */
    DrawingState expandedAs(const DrawingState &other) const;

private:
    struct Subjects
    {
        QSet<const TreeItem *> items;
        QSet<QString> uuids;

        void add(const SpearItem &spear);
        bool contain(const SpearItem &spear) const;
    };

    Subjects m_expanded;
    Subjects m_selected;
    QPointF m_center;
};
