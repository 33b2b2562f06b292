// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>

class QString;
class QWidget;

/** Message boxes that show their text letter by letter: names in it may look like markup. */
namespace PlainBox {

/** Warns until the user closes the box; the button he closed it with. */
QMessageBox::StandardButton
warning(QWidget *parent, const QString &title, const QString &text,
        QMessageBox::StandardButtons buttons = QMessageBox::Ok,
        QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

/** Asks; true for yes. */
bool ask(QWidget *parent, const QString &title, const QString &text);

} // namespace PlainBox
