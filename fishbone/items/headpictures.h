// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineF>
#include <QSizeF>

class QPainter;

/**
 * The pictures of head and tail, which all spears share: SpearItem::m_pixHeader and m_pixTail. They
 * are painted from the vectors of their files unless a host has assigned others.
 */
namespace HeadPictures {

/** Loads those that are not there. */
void load();
/** Looks again for those whose files were missing. */
void loadMissing();
/** Deletes them. */
void release();

/** The size of the head, empty without a picture. */
QSizeF headSize();
/** The size of the tail, empty without a picture. */
QSizeF tailSize();
/** A number that is another one for other pictures. */
qint64 key();

/** Paints the head at the start and the tail at the end of @p backbone. */
void paint(QPainter &painter, const QLineF &backbone);

} // namespace HeadPictures
