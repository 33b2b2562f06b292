// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/ziparchive.h>

#include <QStringList>

#include <vector>

/** The parts of a presentation that are the same for all slides, or nearly. */
namespace SlidePackage {

/** What changes from one presentation to the next. */
struct Content
{
    QByteArray slide;
    QByteArray slideRelations; ///< beyond those to the layout and the notes
    QByteArray notes;          ///< the paragraphs of the notes
    QStringList accents;       ///< the six colours of the theme, "4472C4" for instance
    QString title;
    qint64 width; ///< of the slide, in English metric units
    qint64 height;
};

/** All parts of the package. */
std::vector<ZipWriter::File> parts(const Content &content);

/** @p text as the content of an element or attribute. */
QByteArray escaped(const QString &text);

} // namespace SlidePackage
