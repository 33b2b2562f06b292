// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

class ImportedTree;
class QXmlStreamReader;
class TreeItem;

/** Reads the nodes of a FreeMind or Freeplane mind map. */
class FreeMindReader
{
public:
    FreeMindReader(QXmlStreamReader &xml, ImportedTree &tree)
        : m_xml(xml)
        , m_tree(tree)
    {
    }

    /** Reads up to the end of the map; false when the tree failed. */
    bool read();

private:
    /** A node around the current place. */
    struct Node
    {
        TreeItem *subject;
        QStringList icons;  ///< that mean nothing to a subject
        QStringList images; ///< that it shows
    };
    /** An arrow to another node. */
    struct Arrow
    {
        TreeItem *from;
        QString to; ///< the id of the other node
        QString label;
        qint64 line;
    };

    bool readElement();
    /** Reads the element that stands in a node; false for one that is not known. */
    bool readPart();
    bool openNode();
    void closeNode();
    void readNodeValues(TreeItem &subject);
    void readRichText();
    void readNamedValue();
    void readIcon();
    void readArrow();
    void readHook();
    void leaveOutLook();
    void resolveArrows();

    QXmlStreamReader &m_xml;
    ImportedTree &m_tree;
    std::vector<Node> m_open;
    std::vector<Arrow> m_arrows;
    QHash<QString, TreeItem *> m_byId;
};
