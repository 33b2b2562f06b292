// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/rubberband.h>

#include <app/diagram/selectedsubjects.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/fishmodel.h>

#include <QRubberBand>

RubberBand::RubberBand(FishEditor *editor)
    : m_editor(editor)
{
}

void RubberBand::begin(const QPoint &pos, bool adds)
{
    m_origin = m_editor->view()->mapToScene(pos);
    m_adds = adds;
    m_before.clear();
    const QModelIndexList selected = SelectedSubjects::of(*m_editor);
    for (const QModelIndex &index : selected)
        m_before.append(index);
}

/** What was selected in the beginning and is still there. */
QList<SpearItem *> RubberBand::living() const
{
    const auto *const model = qobject_cast<const FishModel *>(m_editor->model());
    return model ? SelectedSubjects::spearsOf(*model, m_before) : QList<SpearItem *>();
}

/** The bones whose titles are in @p frame of the scene, or partly. */
QList<SpearItem *> RubberBand::touched(const QPolygonF &frame) const
{
    QList<SpearItem *> spears;
    const QList<QGraphicsItem *> items =
        m_editor->scene()->items(frame, Qt::IntersectsItemBoundingRect);
    for (const QGraphicsItem *item : items) {
        auto *const spear = qgraphicsitem_cast<const TextItem *>(item)
                                ? qgraphicsitem_cast<SpearItem *>(item->parentItem())
                                : nullptr;
        if (spear && spear->isVisible() && item->isVisible())
            spears.append(spear);
    }
    return spears;
}

void RubberBand::reach(const QPoint &pos)
{
    const GraphicsView *const view = m_editor->view();
    const QRect frame = QRect(view->mapFromScene(m_origin), pos).normalized();
    if (!m_frame)
        m_frame = new QRubberBand(QRubberBand::Rectangle, view->viewport());
    m_frame->setGeometry(frame);
    m_frame->show();
    m_editor->selectSpears((m_adds ? living() : QList<SpearItem *>()) +
                           touched(view->mapToScene(frame)));
}

void RubberBand::end()
{
    if (m_frame)
        m_frame->hide();
}

void RubberBand::cancel()
{
    end();
    m_editor->selectSpears(living());
}
