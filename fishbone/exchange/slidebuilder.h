// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/slideconnections.h>
#include <fishbone/exchange/slidepackage.h>

#include <QHash>
#include <QRectF>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

class QColor;
class QPainterPath;
class TreeItem;
struct SlideShape;

/**
 * Makes the elements of a slide of shapes.
 *
 * Straight lines are connectors that are attached to what they touch (SlideConnections). What is
 * moved as one, as a category with its title, is a group (SlideGroups). What the drawing needs only
 * to hold on to, the joints, is invisible, undermost and marked as decoration.
 */
class SlideBuilder
{
public:
    /** The slide is as wide as @p width in English metric units, and shows @p shapes, which live
     * on, of the diagram of @p head; @p drawing is what they cover. */
    SlideBuilder(const std::vector<SlideShape> &shapes, const TreeItem &head, const QRectF &drawing,
                 qint64 width);

    /** Is told what part of the shapes is written; false ends the writing. */
    using Goes = std::function<bool(double part)>;

    /** What of the presentation changes with the diagram; nothing when @p goes ended it. */
    std::optional<SlidePackage::Content> content(const Goes &goes);

private:
    void findAccents();
    QPointF place(const QPointF &point) const;
    QByteArray colour(const QColor &colour) const;
    QByteArray line(const SlideShape &shape) const;
    QByteArray attachment(const char *element, const SlideConnections::End &end) const;
    QByteArray straightLine(int index) const;
    QByteArray geometry(const QPainterPath &path, const QRectF &bounds,
                        const std::vector<QPointF> &sites) const;
    QByteArray freeform(int index) const;
    QByteArray joint(int index) const;
    QByteArray relationTo(const QString &link);
    QByteArray linkOf(const SlideShape &shape);
    QByteArray textBox(int index);
    QByteArray element(int index);
    QByteArray group(const std::vector<int> &members);
    bool writeShapes(QByteArray &shapes, const Goes &goes);
    QByteArray slide(const QByteArray &shapes) const;

    const std::vector<SlideShape> &m_shapes;
    const SlideConnections m_connections;
    const TreeItem &m_head;
    const QRectF m_drawing;
    const qint64 m_width;
    double m_scale = 1;
    QPointF m_origin;
    QStringList m_accents;
    QHash<QString, QByteArray> m_linkIds; ///< of their relations
    QByteArray m_relations;
    int m_relation = 2; ///< the layout and the notes come first
    int m_groups = 0;   ///< within that of the whole drawing
};
