// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector>

class QFormLayout;

/** Leads Tab through the rows of a form as the eye goes, whatever was made first. */
namespace RowTabOrder {

/** Orders the fields of @p forms, one after the other, by their rows, and those of a row from its
 * beginning on. */
void apply(const QVector<const QFormLayout *> &forms);

} // namespace RowTabOrder
