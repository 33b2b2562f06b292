// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QString>

/** The folder of the running program, with a "/" at the end. Needs an application object. */
inline QString programFolder()
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/');
}
