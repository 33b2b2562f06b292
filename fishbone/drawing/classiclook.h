// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/drawinglook.h>
#include <fishbone/drawing/speartree.h>

/**
 * The classic look: the backbone is a wedge between two pictures, main bones lean on both sides of
 * it, bones below them are level and slanted in turns, and the texts of slanted bones lie along
 * them.
 */
class ClassicLook : public DrawingLook
{
public:
    double width(const SpearItem &spear) const override;
    double height(const SpearItem &spear) const override;
    double backboneAngle(const SpearItem &spear) const override;

    QLineF line(const SpearItem &spear, const SpearItem *parent) const override;
    QPointF textPosition(const SpearItem &spear) const override;
    std::optional<double> textRotation(const SpearItem &spear) const override;
    QPointF statusPosition(const SpearItem &spear) const override;
    QPointF linkPosition(const SpearItem &spear) const override;
    QPointF buttonPosition(const SpearItem &spear) const override;
    bool showsStatus(const SpearItem &spear) const override;

    int rowAt(const SpearItem &spear, const QPointF &scenePos, int movingRow) const override;
    QPointF slot(const SpearItem &spear, int row) const override;

    QRectF textRect(const SpearItem &spear) const override;
    QRectF boundingRect(const SpearItem &spear) const override;
    QPainterPath shape(const SpearItem &spear) const override;
    void paint(QPainter &painter, const SpearItem &spear) const override;
    bool paintText(QPainter &painter, const SpearItem &spear) const override;

    void size(const SpearTree &tree) const override;
    void place(const SpearTree &tree) const override;

private:
    static void placeAlongSlantedBone(const SpearTree &tree, const SpearTree::Entry &parent);
    static void placeAlongLevelBone(const SpearTree &tree, const SpearTree::Entry &parent);
};
