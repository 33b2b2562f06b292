// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QList>

/** Draws nothing as selected while it lives, for what goes on paper or into a picture. Nobody hears
 * of it, and no item may go meanwhile. */
class SelectionHidden
{
    Q_DISABLE_COPY(SelectionHidden)

public:
    explicit SelectionHidden(QGraphicsScene *scene)
        : m_scene(scene)
        , m_selected(scene->selectedItems())
    {
        select(false);
    }
    ~SelectionHidden() { select(true); }

private:
    void select(bool selected)
    {
        const QSignalBlocker silence(m_scene);
        for (QGraphicsItem *item : qAsConst(m_selected))
            item->setSelected(selected);
    }

    QGraphicsScene *m_scene;
    QList<QGraphicsItem *> m_selected;
};
