// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/base/modalanswer.h>

#include <QColorDialog>

/**
 * Lets the user choose a colour, transparency included, starting on @p current; nothing when the
 * dialog is cancelled.
 */
inline std::optional<QColor> chooseColor(const QColor &current, QWidget *parent)
{
    auto *const dialog = new QColorDialog(parent);
    // In this order, since a dialog without the option forgets the transparency of the colour.
    dialog->setOption(QColorDialog::ShowAlphaChannel);
    dialog->setCurrentColor(current);
    return modalAnswer(dialog, &QColorDialog::selectedColor);
}
