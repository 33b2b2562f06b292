// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** The filters of file dialogs for the formats of others. */
namespace ExchangeFilters {

/** As DiagramExchange::importFilter(). */
QString forImport();
/** As DiagramExchange::exportFilter(). */
QString forExport();

} // namespace ExchangeFilters
