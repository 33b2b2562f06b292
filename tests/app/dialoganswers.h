// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <functional>

/** What a TestSupport::ModalDriver does with common dialogs. */
namespace DialogAnswers {

/** Chooses the file @p path. */
inline std::function<void(QFileDialog &)> enter(const QString &path)
{
    return [path](QFileDialog &dialog) {
        dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
        QMetaObject::invokeMethod(&dialog, "accept");
    };
}

/** Presses @p button. */
inline std::function<void(QMessageBox &)> press(QMessageBox::StandardButton button)
{
    return [button](QMessageBox &box) { box.button(button)->click(); };
}

} // namespace DialogAnswers
