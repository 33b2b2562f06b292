// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class ImportedTree;
class QByteArray;
class TreeItem;

/**
 * @name The formats of DiagramExchange
 *
 * Each has a reader, which adds what the bytes hold to a tree and returns whether that worked (the
 * tree knows the reason when it did not), and a writer for a tree of a bounded depth.
 * @{
 */
namespace JsonFormat {
bool read(const QByteArray &bytes, ImportedTree &tree);
QByteArray write(const TreeItem &head);
} // namespace JsonFormat

namespace MarkdownFormat {
bool read(const QByteArray &bytes, ImportedTree &tree);
QByteArray write(const TreeItem &head);
} // namespace MarkdownFormat

namespace TextFormat {
bool read(const QByteArray &bytes, ImportedTree &tree);
QByteArray write(const TreeItem &head);
} // namespace TextFormat

namespace OpmlFormat {
bool read(const QByteArray &bytes, ImportedTree &tree);
QByteArray write(const TreeItem &head);
} // namespace OpmlFormat

namespace FreeMindFormat {
bool read(const QByteArray &bytes, ImportedTree &tree);
QByteArray write(const TreeItem &head);
} // namespace FreeMindFormat

namespace MermaidFormat {
bool read(const QByteArray &bytes, ImportedTree &tree);
QByteArray write(const TreeItem &head);
} // namespace MermaidFormat

namespace CsvFormat {
bool read(const QByteArray &bytes, ImportedTree &tree);
QByteArray write(const TreeItem &head);
} // namespace CsvFormat
/** @} */
