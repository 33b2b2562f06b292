// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/diagramexchange.h>

#include <QString>

/** How a user is told which formats there are. */
namespace FormatNames {

/** The names of the formats that @p can says yes to, as the command line takes them: "json, md, …".
 */
QString ids(bool (*can)(DiagramExchange::Format));
/** The endings that tell the formats that @p can says yes to: ".json, .md, …". */
QString endings(bool (*can)(DiagramExchange::Format));

} // namespace FormatNames
