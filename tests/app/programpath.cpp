// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/programrunner.h>

QString ProgramRunner::program()
{
    return QStringLiteral(FISHBONE_PROGRAM);
}
