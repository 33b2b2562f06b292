// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/**
 * Shows the cursor of a program that works, as long as it lives: for work that cannot be split, so
 * that nothing else happens meanwhile. Nobody may be asked anything before it is gone.
 */
class BusyCursor
{
    Q_DISABLE_COPY(BusyCursor)

public:
    BusyCursor();
    ~BusyCursor();
};
