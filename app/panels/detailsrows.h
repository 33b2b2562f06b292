// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector>

class DetailsField;
class QWidget;

/**
 * The one list of the rows of the details, in the order in which people fill them: what a cause is,
 * what has been found out, who does what until when, and the rest. The form shows them and Tab
 * leads through them in this order, so that where there is little room the first ones are in sight.
 */
namespace DetailsRows {

/** Makes the fields of all rows within @p form, which owns them; @p statusIcon stands beside the
 * progress. */
QVector<DetailsField *> make(QWidget *form, QWidget *statusIcon);

} // namespace DetailsRows
