// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/viewprint.h>

#include <QGraphicsView>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <fishbone/base/modalanswer.h>

void printView(QGraphicsView &view, QWidget *window)
{
    QPrinter printer(QPrinter::ScreenResolution);
    const auto isAccepted = [](const QPrintDialog &) { return true; };
    if (!modalAnswer(new QPrintDialog(&printer, window), isAccepted))
        return; // also when the window has died with the dialog open, and the view with it
    QPainter painter(&printer);
    view.render(&painter, QRectF(), QRect(), Qt::KeepAspectRatio);
}
