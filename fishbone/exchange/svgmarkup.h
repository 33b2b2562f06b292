// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/picturesink.h>

#include <QByteArray>

class QColor;
class QPainterPath;
class QPen;

/** The attributes of SVG elements, as short as they can be. */
namespace SvgMarkup {

/** @p value with one decimal at most. */
QByteArray number(qreal value);
/** The coordinates of @p at. */
QByteArray point(const QPointF &at);
/** ` name="#rrggbb"`, with the opacity when there is one. */
QByteArray paint(const char *name, const QColor &color);
/** The data of a path, which is closed. */
QByteArray pathData(const QPainterPath &path);
/** The dashes of @p pen, which are given in its width, and its ends when they are not round. */
QByteArray dashes(const QPen &pen);
/** The font of a text, as far as it is not that of the file. */
QByteArray fontOf(const ClearFont &font);

} // namespace SvgMarkup
