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
bool read(const QByteArray &xml, ImportedTree &tree);
QByteArray write(const TreeItem &head);
} // namespace XmindXml
