// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/savedialog.h>

#include <QFileDialog>
#include <QFileInfo>

QString SaveDialog::chosenFile(QWidget *parent, const QString &title, const QString &proposed,
                               const QStringList &filters, const QStringList &suffixes)
{
    QFileDialog dialog(parent, title, proposed);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(suffixes.constFirst());
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString &filter) {
        const QString suffix = suffixes.value(filters.indexOf(filter));
        dialog.setDefaultSuffix(suffix);
        const QFileInfo entered(dialog.selectedFiles().value(0));
        dialog.selectFile(entered.completeBaseName() + QLatin1Char('.') + suffix);
    });
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
