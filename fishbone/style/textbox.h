// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QColor;
class QPainter;
class QPen;
class QRectF;

/**
 * Paints what lies behind and around a text in @p box: the part of the filling in @p exposed, none
 * when @p fill is invalid, and a frame with round corners inside the box.
 */
void paintTextBox(QPainter &painter, const QRectF &box, const QRectF &exposed, const QColor &fill,
                  const QPen &frame);
