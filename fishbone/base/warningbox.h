// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>
#include <QPointer>

/**
 * Shows a warning until the user closes it, or until it dies with @p parent: the event loop that
 * it runs may well end the parent, which a box on the stack would not survive.
 */
inline void showWarning(const QString &title, const QString &text, QWidget *parent)
{
    const QPointer<QMessageBox> box(
        new QMessageBox(QMessageBox::Warning, title, text, QMessageBox::Ok, parent));
    box->exec();
    delete box.data();
}
