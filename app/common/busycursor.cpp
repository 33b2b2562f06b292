// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/busycursor.h>

#include <QCursor>
#include <QGuiApplication>

BusyCursor::BusyCursor()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

BusyCursor::~BusyCursor()
{
    QGuiApplication::restoreOverrideCursor();
}
