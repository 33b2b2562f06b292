// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QByteArray>
#include <QString>

#include <fishbone/model/treeitem.h>

/**
 * Synthetic documents of any size, the same for the same arguments on every machine. Every
 * attribute of every subject is filled; titles have 8 to 20 characters, Latin and Chinese mixed.
 */
namespace Synthetic {

enum class Shape {
    Fan,   ///< every subject has five to eight children, level by level
    Wide,  ///< all subjects below the head
    Wide2, ///< half of the subjects below the head, each with a child
    Deep,  ///< chains of 400 subjects, the deepest that a file can hold with room to spare
};

/** The shape of that name ("fan", "wide", "wide2", "deep"); false for another name. */
bool shapeFromName(const QString &name, Shape *shape);
/** The reverse. */
QString nameOf(Shape shape);

/** A head with all its descendants, @p count subjects in all. */
std::unique_ptr<TreeItem> makeTree(Shape shape, int count, quint32 seed = 1);

/** The same as a document in JSON. */
QByteArray makeDocument(Shape shape, int count, quint32 seed = 1);

} // namespace Synthetic
