// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/diagram/drawingstate.h>
#include <app/diagram/subjectfilter.h>

#include <QObject>
#include <QPointer>
#include <QSet>

#include <optional>

class DiagramSession;
class SpearItem;
class TreeItem;

/**
 * Shows on the drawing which subjects a filter accepts: the bones of the others are dimmed, those
 * that lead to an accepted one a little less. On the screen alone: neither the document nor its
 * history nor a picture of it hears of that. Follows edits.
 *
 * Subjects are kept by address, only ever compared.
 */
class DrawingFilter : public QObject
{
    Q_OBJECT

public:
    static constexpr double otherOpacity = 0.25; ///< of a bone that is not wanted
    static constexpr double wayOpacity = 0.5;    ///< of one that leads to a wanted one

    /** Filters what @p session shows, which outlives this. */
    explicit DrawingFilter(DiagramSession *session, QObject *parent = nullptr);

    const SubjectFilter &filter() const { return m_filter; }
    /** Shows what @p filter accepts from now on; everything when it is empty. */
    void setFilter(const SubjectFilter &filter);
    bool isActive() const { return !m_filter.isEmpty(); }

    /** Whether branches without an accepted subject are contracted when a filter is set, and all
     * others expanded; the drawing looks as before without filter. Not at first. */
    void setFolding(bool folding);

    /** How many subjects are accepted. */
    int count() const { return int(m_hits.size()); }
    /** Those that are accepted and all above them. */
    QSet<const TreeItem *> shown() const { return m_hits + m_above; }

Q_SIGNALS:
    /** Other subjects are accepted than before, or there is a filter now, or none any more. */
    void changed();

private:
    void follow();
    bool findHits();
    void dim();
    void fold();

    DiagramSession *m_session;
    SubjectFilter m_filter;
    QSet<const TreeItem *> m_hits;
    QSet<const TreeItem *> m_above;
    std::optional<DrawingState> m_unfolded; ///< how the drawing was before it was folded
    bool m_isFolding = false;
    bool m_isDimmed = false;
};
