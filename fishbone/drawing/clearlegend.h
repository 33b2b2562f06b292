// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/cleartext.h>

#include <QPointF>
#include <QRectF>

#include <memory>
#include <vector>

/** The explanation of icons and colours: entries in rows, each a symbol and its meaning. */
class ClearLegend
{
public:
    struct Entry
    {
        std::shared_ptr<const ClearText> text;
        QRectF symbol;
        QRectF textRect;

        bool operator==(const Entry &o) const
        {
            return text == o.text && symbol == o.symbol && textRect == o.textRect;
        }
    };

    ClearLegend() = default;
    /** A legend of @p meanings, one an entry. */
    ClearLegend(const std::vector<QString> &meanings, const ClearFont &font, ClearTextCache &cache);

    bool isEmpty() const { return m_entries.empty(); }

    /** Puts it below @p drawing, on the left or on the right, in rows no wider than that; or into a
     * corner of it when none of @p taken is there. Returns what both cover. */
    QRectF place(const QRectF &drawing, const std::vector<QRectF> &taken, bool isRight);

    const std::vector<Entry> &entries() const { return m_entries; }

private:
    QSizeF arrange(qreal width);
    QSizeF arrangeEvenly(qreal width);
    void moveTo(const QPointF &corner);

    std::vector<Entry> m_entries;
};
