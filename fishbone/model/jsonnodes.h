// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QLatin1String>

#include <memory>

class QByteArray;
class TreeItem;

/** The node objects of the diagram format: their keys, and trees to and from them. */
namespace JsonNodes {

inline const QLatin1String childrenKey("children");
inline const QLatin1String createDateKey("createdate");
inline const QLatin1String creatorIdKey("creatorid");
inline const QLatin1String creatorNameKey("creatorname");
inline const QLatin1String detailKey("detail");
inline const QLatin1String followersKey("followers");
inline const QLatin1String isMovableKey("ismovable");
inline const QLatin1String managerIdKey("mgrid");
inline const QLatin1String managerNameKey("mgrname");
inline const QLatin1String pidKey("pid");
inline const QLatin1String planEndDateKey("planenddate");
inline const QLatin1String priorityKey("priority");
inline const QLatin1String progressKey("progress");
inline const QLatin1String showidKey("showid");
inline const QLatin1String spearStyleKey("spearstyle");
inline const QLatin1String statusKey("status");
inline const QLatin1String titleKey("title");
inline const QLatin1String typeKey("type");
inline const QLatin1String urlKey("url");
inline const QLatin1String uuidKey("uuid");

/** How deep the text of a document may nest for Qt's reader to take it. */
constexpr int readableNesting = 1024;
/** The levels of a tree of subjects without styles that fit into readableNesting. */
constexpr int readableLevels = readableNesting / 2;
/** How much deeper than its node's own object a style nests, at most. */
constexpr int styleNesting = 4;
/** The levels that a QJsonObject may have: Qt destroys it with recursion, and stacks are small. */
constexpr int buildableLevels = 20000;

/** What stands beside the attributes of a head and belongs to its document. */
inline const QLatin1String viewKey("view");

/** Whether the format gives @p key a meaning in the object of a node. */
bool isKnown(const QString &key);
/** What is left of @p object without the keys that the format knows. */
QJsonObject otherFields(const QJsonObject &object);

/** The object of a node without its children. */
QJsonObject attributes(const TreeItem &node);
/**
 * Gives @p node the attributes that @p object, a node's of a file, says it has. Returns how many of
 * the keys of the object the format knows.
 */
int readAttributes(TreeItem &node, const QJsonObject &object);

/** What was written of a tree. */
struct Extent
{
    int levels = 0;              ///< of nodes
    bool hasOtherFields = false; ///< which may nest to any depth
};

/**
 * Sets @p out to the object of @p top with its subtree. No levels, with @p out untouched, when
 * there are more than @p maxLevels.
 */
Extent write(QJsonObject &out, const TreeItem &top, int maxLevels);

/** How deep the objects and arrays of a JSON text nest. */
int nesting(const QByteArray &json);

/**
 * Makes the subtree of @p root. Its top names @p parent but is not in its list.
 * Of each children list the first @p position stay in order and the others follow in reverse; a
 * negative position keeps all in order.
 */
std::unique_ptr<TreeItem> read(const QJsonObject &root, TreeItem *parent, int position);

/** What a document's load counts. */
struct Counts
{
    int nodes = 0;
    int withoutParentTask = 0;
};

/** Appends the tree of @p root to @p container. Empty objects are left out with all below them. */
Counts load(const QJsonObject &root, TreeItem &container);

} // namespace JsonNodes
