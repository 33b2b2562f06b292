// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/plainbox.h>

#include <QPointer>

namespace {

QMessageBox::StandardButton run(QMessageBox *shown)
{
    // The box may die with its parent while it runs.
    const QPointer<QMessageBox> box(shown);
    shown->setTextFormat(Qt::PlainText);
    const int answer = shown->exec();
    delete box.data();
    return static_cast<QMessageBox::StandardButton>(answer);
}

} // namespace

namespace PlainBox {

QMessageBox::StandardButton warning(QWidget *parent, const QString &title, const QString &text,
                                    QMessageBox::StandardButtons buttons,
                                    QMessageBox::StandardButton defaultButton)
{
    auto *const box = new QMessageBox(QMessageBox::Warning, title, text, buttons, parent);
    box->setDefaultButton(defaultButton);
    return run(box);
}

bool ask(QWidget *parent, const QString &title, const QString &text)
{
    return run(new QMessageBox(QMessageBox::Question, title, text,
                               QMessageBox::Yes | QMessageBox::No, parent)) == QMessageBox::Yes;
}

} // namespace PlainBox
