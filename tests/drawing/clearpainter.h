// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearlayout.h>

#include <QColor>
#include <QImage>
#include <QPainter>

/// Paints a layout as it stands, to look at.
namespace ClearPainter {

inline QColor lineColor(int category)
{
    static const std::vector<QColor> colors{"#1f6fb4", "#b84d18", "#2b8a4b", "#8a3f9b", "#b03048",
                                            "#5b6b1f", "#0f7c86", "#7a5230", "#46508f", "#a0447c"};
    return colors[std::size_t(category) % colors.size()];
}

inline void paintLabel(QPainter &painter, const ClearLayout::Bone &bone, const QColor &ink,
                       const QColor &status)
{
    for (int line = 0; line < bone.text->lineCount(); ++line)
        bone.text->paintLine(painter, line, bone.base(line), ink);
    painter.setPen(Qt::NoPen);
    if (!bone.status.isNull()) {
        painter.setBrush(status);
        painter.drawEllipse(bone.status);
    }
    if (!bone.link.isNull()) {
        painter.setBrush(QColor("#c8b020"));
        painter.drawRect(bone.link);
    }
    if (!bone.badge.isNull()) {
        painter.setBrush(QColor("#dde4ea"));
        painter.drawRoundedRect(bone.badge, 7, 7);
    }
}

inline QImage paint(const ClearLayout &layout, const std::vector<int> &statuses, qreal scale)
{
    static const std::vector<QColor> states{"#000",    "#777777", "#23935d", "#1f77c0",
                                            "#8a4fc0", "#7fb8e6", "#5a7189", "#c8641a"};
    const QRectF bounds = layout.bounds().adjusted(-8, -8, 8, 8);
    QImage image((bounds.size() * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.translate(-bounds.topLeft());
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor("#3cb879"));
    painter.drawPolygon(layout.backbone());
    painter.setPen(QPen(QColor("#23935d"), 1.5));
    painter.setBrush(QColor("#8fd6b4"));
    painter.drawPath(layout.tail());
    painter.setBrush(QColor("#d8f0e4"));
    painter.drawPath(layout.head());
    for (int i = 1; i < layout.size(); ++i) {
        const ClearLayout::Bone &bone = layout.bone(i);
        const qreal width = bone.level == 1 ? 2.2 : bone.level == 2 ? 1.2 : 1;
        painter.setPen(QPen(lineColor(bone.category), width));
        painter.drawLine(bone.line);
    }
    for (int i = 0; i < layout.size(); ++i) {
        const ClearLayout::Bone &bone = layout.bone(i);
        painter.setPen(Qt::NoPen);
        painter.setBrush(lineColor(bone.category));
        if (bone.level == 1)
            painter.drawRoundedRect(bone.box, 4, 4);
        const QColor ink = bone.level == 1   ? QColor(Qt::white)
                           : bone.level <= 2 ? QColor("#1d2733")
                                             : QColor("#56616e");
        const std::size_t status = std::size_t(i) < statuses.size() && statuses[std::size_t(i)] > 0
                                       ? std::size_t(statuses[std::size_t(i)])
                                       : 5;
        paintLabel(painter, bone, ink, states[status % states.size()]);
    }
    for (const ClearLegend::Entry &entry : layout.legend()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(states[5]);
        painter.drawEllipse(entry.symbol);
        entry.text->paintLine(
            painter, 0, ClearLabel::base(*entry.text, entry.textRect, ClearLabel::Side::Left, 0),
            QColor("#56616f"));
    }
    return image;
}

} // namespace ClearPainter
