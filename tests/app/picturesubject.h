// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/diagram/expansion.h>
#include <app/export/exportdialog.h>

#include <QPainter>

/**
 * What covers 460 x 160, which in the classic look makes a picture of 500 x 200 with its margin;
 * twice as wide with all levels.
 */
inline ExportDialog::Subject pictureSubject(DiagramLook::Kind look = DiagramLook::Classic)
{
    DiagramView view;
    view.look = look;
    return {
        3, QColor(1, 2, 3), view,
        [](const PictureWish &wish) {
            return QRectF(0, 0, wish.levels == Expansion::allLevels ? 960 : 460, 160);
        },
        [](QPainter &painter, const QRectF &target, bool) { painter.fillRect(target, Qt::red); }};
}
