// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/style/spearstyle.h>

#include <QPixmap>

/** What @p text looks like in a @p state of @p style on @p background, cut as a bone would cut it
 * and marked as cut; sharp on a screen of that @p ratio. */
QPixmap stylePreview(const SpearStyle &style, SpearStyle::SpearState state, const QString &text,
                     const QColor &background, qreal ratio);
