// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/**
 * An icon out of an SVG file, to be drawn again inside another one. Shapes and how they are painted
 * are taken over; all else, from scripts to references, stays behind.
 */
class SvgSymbol
{
public:
    /** Reads @p file. What cannot be read, or shows nothing that is understood, is a grey dot. */
    explicit SvgSymbol(const QString &file);

    /** The rest of a start tag, with the view box, and what is in the element. */
    const QByteArray &markup() const { return m_markup; }

private:
    QByteArray m_markup;
};
