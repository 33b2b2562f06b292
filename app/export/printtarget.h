// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QPrintDialog;
class QString;

/** Where a print into a file goes. */
namespace PrintTarget {

/** Has @p printing begin with @p path for it, in place of the working folder. */
void propose(QPrintDialog &printing, const QString &path);

} // namespace PrintTarget
