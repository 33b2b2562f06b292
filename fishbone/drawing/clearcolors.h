// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/diagramlook.h>

#include <QColor>

/** The colours of the clear look. Every text keeps a contrast of 4.5 to what lies below it. */
class ClearColors
{
public:
    explicit ClearColors(DiagramLook::Palette palette);

    DiagramLook::Palette palette() const { return m_palette; }

    /** The colour of the category in row @p category: its box and all its lines. */
    QColor category(int category) const;
    /** The colour of a text of @p level, which in a category stands on category(). */
    QColor ink(int level) const;
    QColor paper() const;     ///< of a picture that is filled
    QColor head() const;      ///< inside the head
    QColor tail() const;      ///< inside the tail
    QColor outline() const;   ///< around head and tail
    QColor backbone() const;  ///< of backbone and tail
    QColor badge() const;     ///< behind the "+5"
    QColor badgeInk() const;  ///< the "+5"
    QColor rootCause() const; ///< behind a root cause

    /** Text on @p fill: white where that can be read, else black or nearly so. */
    static QColor inkOn(const QColor &fill);
    /** @p part of @p color on @p below. */
    static QColor mixed(const QColor &color, const QColor &below, qreal part);
    static constexpr qreal enoughForText = 4.5; ///< contrast
    static constexpr qreal enoughForLines = 3;  ///< contrast
    /** @p ink, as much lighter or darker as it takes to have that contrast to @p below. */
    static QColor readable(const QColor &ink, const QColor &below, qreal enough = enoughForText);
    /** How much lighter one of two colours is than the other: 1 for none, 21 for white on black. */
    static qreal contrast(const QColor &one, const QColor &other);

private:
    bool isDark() const { return DiagramLook::isDark(m_palette); }
    bool isGray() const { return DiagramLook::onPaper(m_palette) == DiagramLook::GrayColors; }

    DiagramLook::Palette m_palette;
};
