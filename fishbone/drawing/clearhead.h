// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearlabel.h>

#include <QPainterPath>
#include <QSizeF>

/**
 * The head of the fish around its title, and the tail. Both are drawn for a head on the right,
 * whose back is at 0, and the tail's fork at a place of its own.
 */
class ClearHead
{
public:
    /** A head that has all lines of @p label inside, with 8 to spare. */
    explicit ClearHead(const ClearLabel &label);

    /** How far it reaches in front of its back, and how high it is. */
    const QSizeF &size() const { return m_size; }

    /** The outline. */
    QPainterPath outline() const;

    /** The middle of the title. */
    QPointF titleCenter() const;

    /** The tail, which ends the backbone at @p x. */
    static QPainterPath tail(qreal x);
    /** How far the tail reaches behind the end of the backbone. */
    static constexpr qreal tailLength = 28;

private:
    qreal widthAtHeight(qreal height) const;

    const ClearLabel &m_label;
    QSizeF m_size;
};
