// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>
#include <QString>

class QSvgRenderer;

/**
 * The renderer that draws the picture @p file, shared by everything that shows the same file.
 * A file is read and parsed once per application object, which owns the renderer. Null for an
 * empty name and for a file that is no SVG picture, which is kept too, and for one that does not
 * exist, which is looked for again by every call, but once within a OnePass.
 */
QSvgRenderer *sharedSvgRenderer(const QString &file);

/**
 * The picture @p file as so many device pixels, for painting on a screen; kept for the next item
 * that shows it in that size. Null where sharedSvgRenderer() is.
 */
QPixmap screenPicture(const QString &file, const QSize &devicePixels);

/** Number of files that sharedSvgRenderer() has read since the process began. */
int parsedSvgFileCount();
