// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/examples/hostprocess.h>

QString HostProcess::program()
{
    return QStringLiteral(FISHBONE_TASK_HOST);
}
