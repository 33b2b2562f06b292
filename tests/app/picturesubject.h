// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/diagram/expansion.h>
#include <app/export/exportdialog.h>

/// What covers 460 x 160, which makes a picture of 500 x 200 with its margin; twice as wide with all
/// levels.
inline ExportDialog::Subject pictureSubject()
{
    return {3, QColor(1, 2, 3), [](std::optional<int> levels) {
                return QRectF(0, 0, levels == Expansion::allLevels ? 960 : 460, 160);
            }};
}
