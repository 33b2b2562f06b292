// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <functional>

class QPainterPath;
class QPointF;
class QRectF;

/** The small elements that the shapes of a slide are made of. */
namespace SlideMarkup {

/** A length in English metric units, which are whole ones. */
QByteArray measure(double value);

/** Where a shape is, with further @p attributes. */
QByteArray frame(const QRectF &rect, const QByteArray &attributes = {});

/** The frame of a group whose shapes are placed as if there were none. */
QByteArray groupFrame(const QRectF &rect);

/** The steps of a path, with each point as @p placed has it. */
QByteArray steps(const QPainterPath &path, const std::function<QPointF(const QPointF &)> &placed);

/** The identity of an element; screen readers pass over what is there only for the hands. */
QByteArray named(int id, const QByteArray &name, bool isDecoration = false);

} // namespace SlideMarkup
