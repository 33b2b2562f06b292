// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

class ImportedTree;
class QXmlStreamReader;

/** What the XML formats share. */
namespace XmlSupport {

/** @p text with the characters that XML cannot carry replaced by U+FFFD. */
QString storable(const QString &text);

/**
 * Goes on to the root element, past everything before it; false, and @p tree fails, when that is
 * not @p root or when the document declares entities.
 */
bool enterRoot(QXmlStreamReader &xml, const QString &root, ImportedTree &tree);

/** The text in the element that @p xml has just entered, up to its end, and in all elements in it,
 * however deep they nest: Qt's reader recurses for these. */
QString textOf(QXmlStreamReader &xml);

/** Reads the rest of @p document, which @p xml reads. Whether all of it is well-formed; @p tree
 * fails when not, and names the element that is not closed, if that is it. */
bool finish(QXmlStreamReader &xml, ImportedTree &tree, const QByteArray &document);

} // namespace XmlSupport
