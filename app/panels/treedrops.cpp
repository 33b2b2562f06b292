// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/treedrops.h>

#include <app/diagram/diagramsession.h>
#include <app/panels/subjectproxymodel.h>
#include <app/panels/subjecttree.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/spearitem.h>

#include <QDropEvent>
#include <QRubberBand>

#include <algorithm>

TreeDrops::TreeDrops(DiagramSession *session, SubjectTree *tree, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_tree(tree)
{
    tree->view()->viewport()->setAcceptDrops(true);
    tree->view()->viewport()->installEventFilter(this);
}

bool TreeDrops::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        offer(*static_cast<QDropEvent *>(event));
        return true;
    case QEvent::DragLeave:
        if (m_mark)
            m_mark->hide();
        return true;
    case QEvent::Drop: {
        auto *const drop = static_cast<QDropEvent *>(event);
        offer(*drop);
        if (m_mark)
            m_mark->hide();
        if (drop->isAccepted())
            move(dragged(*drop), placeAt(drop->pos()));
        return true;
    }
    default:
        return QObject::eventFilter(watched, event);
    }
}

/** The place at @p pos: between rows near their edges, otherwise onto one. */
TreeDrops::Place TreeDrops::placeAt(const QPoint &pos) const
{
    const SubjectTreeView *const view = m_tree->view();
    const QModelIndex row = view->indexAt(pos);
    const QModelIndex subject = m_tree->proxy()->mapToSource(row);
    if (!subject.isValid())
        return {};
    const QRect rect = view->visualRect(row);
    const int edge = rect.height() / 4;
    const FishModel *const model = m_session->model();
    const bool isHead = !subject.parent().isValid();
    constexpr int line = 3;
    if (!isHead && pos.y() < rect.top() + edge)
        return {subject.parent(), subject.row(),
                QRect(rect.left(), rect.top() - 1, rect.width(), line)};
    if (pos.y() > rect.bottom() - edge) {
        const QRect mark(rect.left(), rect.bottom() - 1, rect.width(), line);
        if (view->isExpanded(row) && m_tree->proxy()->rowCount(row) > 0)
            return {subject, 0, mark};
        if (!isHead)
            return {subject.parent(), subject.row() + 1, mark};
    }
    return {subject, model->rowCount(subject), rect};
}

/** Takes what comes from the tree itself to wherever there is a place for it, and shows that. */
void TreeDrops::offer(QDropEvent &event)
{
    const Place place = placeAt(event.pos());
    const bool isPossible = place.parent.isValid() && !dragged(event).isEmpty();
    if (isPossible && !m_mark)
        m_mark = new QRubberBand(QRubberBand::Line, m_tree->view()->viewport());
    if (m_mark) {
        m_mark->setGeometry(place.mark);
        m_mark->setVisible(isPossible);
    }
    event.setDropAction(Qt::MoveAction);
    event.setAccepted(isPossible);
}

/** The subjects of this document that are dragged. */
QModelIndexList TreeDrops::dragged(const QDropEvent &event) const
{
    QModelIndexList subjects = m_session->model()->indexList(event.mimeData());
    subjects.erase(std::remove_if(subjects.begin(), subjects.end(),
                                  [](const QModelIndex &index) { return !index.isValid(); }),
                   subjects.end());
    return subjects;
}

void TreeDrops::move(const QModelIndexList &subjects, const Place &place)
{
    const QPersistentModelIndex parent = place.parent;
    QList<QPersistentModelIndex> moved;
    for (const QModelIndex &index : subjects)
        moved.append(index);
    m_session->select(subjects); // which makes their bones
    const QList<QGraphicsItem *> bones = m_session->editor()->selectedItems();
    if (!parent.isValid() || bones.isEmpty())
        return;
    m_session->editor()->moveItems(QPoint(), bones, parent, place.row);
    QModelIndexList living;
    for (const QPersistentModelIndex &index : qAsConst(moved)) {
        if (index.isValid())
            living.append(index);
    }
    m_session->select(living);
}
