// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/printtarget.h>

#include <QLineEdit>
#include <QPrintDialog>

namespace PrintTarget {

void propose(QPrintDialog &printing, const QString &path)
{
    // A name that the printer is given would choose the file in place of the user's printer.
    if (auto *const field = printing.findChild<QLineEdit *>(QStringLiteral("filename")))
        field->setText(path);
}

} // namespace PrintTarget
