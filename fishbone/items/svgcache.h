// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QSvgRenderer;

/// The renderer that draws the picture \a file, shared by everything that shows the same file.
/// A file is read and parsed once per application object, which owns the renderer. Null for an
/// empty name and for a file that does not exist or is no SVG picture; that result is kept too.
QSvgRenderer *sharedSvgRenderer(const QString &file);

/// Number of files that sharedSvgRenderer() has read since the process began.
int parsedSvgFileCount();
