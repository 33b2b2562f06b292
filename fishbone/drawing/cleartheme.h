// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

#include <vector>

/** The colours of the clear look. Every text keeps a contrast of 4.5 to what lies below it. */
class ClearTheme
{
public:
    enum class Palette {
        Distinct, ///< for eyes that tell red from green and for those that do not
        Gray,     ///< for printers without colours
        Dark,     ///< light colours for a dark canvas
    };

    explicit ClearTheme(Palette palette = Palette::Distinct);

    /** What a picture is filled with. */
    QColor paper() const { return m_isDark ? QColor(0x1e, 0x21, 0x26) : QColor(Qt::white); }
    /** A title at @p level that has no box. */
    QColor ink(int level) const;
    /** The bones and the box of the category in row @p row. */
    QColor category(int row) const;
    /** How many categories have colours of their own. */
    int categoryCount() const { return int(m_categories.size()); }
    /** Text on @p fill: white or nearly black, whichever is easier to read. */
    static QColor inkOn(const QColor &fill);
    /** The quieter text of the legend. */
    QColor legendInk() const { return ink(deepLevel); }

    QColor headFill() const { return m_headFill; }
    QColor headLine() const { return m_headLine; }
    QColor tailFill() const { return m_tailFill; }
    QColor backbone() const { return m_backbone; }
    /** The "+5" of a contracted bone. */
    QColor badgeFill() const { return m_badgeFill; }

    /** How much lighter one of two colours is than the other: 1 for none, 21 for white on black. */
    static qreal contrast(const QColor &one, const QColor &other);
    /** @p color, as much lighter or darker as it takes to have that contrast to @p below. */
    static QColor readable(QColor color, const QColor &below);

    static constexpr qreal leastContrast = 4.5;

private:
    static constexpr int deepLevel = 3;

    bool m_isDark;
    std::vector<QColor> m_categories;
    QColor m_headFill;
    QColor m_headLine;
    QColor m_tailFill;
    QColor m_backbone;
    QColor m_badgeFill;
};
