// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QComboBox;

/** The choices of boxes for status and verdict. What is chosen stays when they are listed anew. */
namespace MarkBox {

/**
 * Lists all statuses in @p box with their icons, in the language of now, behind @p any, which has
 * no data, unless that is empty.
 */
void listStatuses(QComboBox &box, const QString &any = {});
/** Lists all verdicts in the same way, which have no icons. */
void listVerdicts(QComboBox &box, const QString &any = {});

} // namespace MarkBox
