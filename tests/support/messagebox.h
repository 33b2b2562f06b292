// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tests/support/modaldriver.h>

#include <QMessageBox>
#include <QString>
#include <QTextDocument>

namespace TestSupport {

/** What a message box looked like. */
struct Message
{
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons = QMessageBox::NoButton;
};

/** Answers the next message box and keeps what it looked like. */
inline ModalDriver<QMessageBox>::Action keepMessage(Message &message)
{
    return [&message](QMessageBox &box) {
        message = {box.windowTitle(), box.text(), box.icon(), box.standardButtons()};
        box.accept();
    };
}

/** The letters that a user reads in it. */
inline QString shownText(const Message &message)
{
    if (!Qt::mightBeRichText(message.text))
        return message.text;
    QTextDocument document;
    document.setHtml(message.text);
    return document.toPlainText();
}

} // namespace TestSupport
