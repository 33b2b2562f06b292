// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class ImportedTree;
class QByteArray;
class TreeItem;

/** The two generations of XMind maps: JSON since 2018, XML before. */
namespace XmindJson {
bool read(const QByteArray &json, ImportedTree &tree);
QByteArray write(const TreeItem &head);
} // namespace XmindJson

namespace XmindXml {
/** Reads the map in @p xml; @p comments is what people said about its topics, if there is such. */
bool read(const QByteArray &xml, const QByteArray &comments, ImportedTree &tree);
QByteArray write(const TreeItem &head);
} // namespace XmindXml
