// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/drawingfilter.h>

#include <app/diagram/diagramsession.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearwalk.h>
#include <fishbone/model/subjectwalk.h>

#include <QDate>

#include <utility>

DrawingFilter::DrawingFilter(DiagramSession *session, QObject *parent)
    : QObject(parent)
    , m_session(session)
{
    connect(session, &DiagramSession::stateChanged, this, &DrawingFilter::follow);
    // At once, so that nobody sees the new bones in full colour for a moment.
    connect(session, &DiagramSession::drawingRebuilt, this, &DrawingFilter::dim);
}

void DrawingFilter::setFilter(const SubjectFilter &filter)
{
    if (filter == m_filter)
        return;
    m_filter = filter;
    findHits();
    fold();
    dim();
    Q_EMIT changed();
    m_session->touch(); // whoever shows the drawing elsewhere
}

void DrawingFilter::setFolding(bool folding)
{
    if (folding == m_isFolding)
        return;
    m_isFolding = folding;
    fold();
    dim();
    m_session->touch();
}

void DrawingFilter::follow()
{
    if (findHits())
        Q_EMIT changed();
    dim();
}

/** Asks which subjects are accepted now; whether those are others than before. */
bool DrawingFilter::findHits()
{
    const QSet<const TreeItem *> hitsBefore = std::exchange(m_hits, {});
    const QSet<const TreeItem *> aboveBefore = std::exchange(m_above, {});
    const TreeItem *const container = m_session->container();
    if (isActive() && container) {
        const QDate today = QDate::currentDate();
        visitSubjects(container, [&](const TreeItem *subject) {
            if (subject == container || !m_filter.accepts(*subject, today))
                return true;
            m_hits.insert(subject);
            for (const TreeItem *above = subject->parent(); above && !m_above.contains(above);
                 above = above->parent())
                m_above.insert(above);
            return true;
        });
    }
    return m_hits != hitsBefore || m_above != aboveBefore;
}

/** Gives each bone its opacity, and says why to those who do not see it. That of the head, on whose
 * line all others stand, stays. */
void DrawingFilter::dim()
{
    SpearItem *const head = m_session->editor()->headSpear();
    if (!head || (!isActive() && !m_isDimmed))
        return;
    m_isDimmed = isActive();
    const QString out = tr("left out by the filter");
    const QString onTheWay = tr("leads to what the filter shows");
    visitSpears(head, [&](SpearItem *spear) {
        const TreeItem *const subject = spear->treeItem();
        const bool isFull = !m_isDimmed || spear == head || m_hits.contains(subject);
        // A wanted bone may be an item below one that is not.
        spear->setFlag(QGraphicsItem::ItemIgnoresParentOpacity, m_isDimmed && spear != head);
        const bool isOnTheWay = m_above.contains(subject);
        spear->setOpacity(isFull ? 1 : isOnTheWay ? wayOpacity : otherOpacity);
        const QVariant note = isFull ? QVariant() : isOnTheWay ? QVariant(onTheWay) : QVariant(out);
        if (note != spear->data(SpearItem::noteKey))
            spear->setData(SpearItem::noteKey, note);
        return true;
    });
}

/** Expands what leads to accepted subjects and nothing else, or the drawing as it was before. */
void DrawingFilter::fold()
{
    if (!m_session->document())
        return;
    const DrawingState now = DrawingState::capture(*m_session->editor());
    if (m_isFolding && isActive()) {
        if (!m_unfolded)
            m_unfolded = now;
        m_session->restore(now.expanding(m_above));
    } else if (m_unfolded) {
        m_session->restore(now.expandedAs(*m_unfolded));
        m_unfolded.reset();
    }
}
