// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/diagramexchange.h>

/** What of a diagram the formats have no room for. */
namespace ExchangeLosses {

/** As DiagramExchange::lossesOf(). */
ExchangeReport of(const TreeItem &head, DiagramExchange::Format format);
/** As DiagramExchange::lossesOfSlide(). */
ExchangeReport ofSlide(const TreeItem &head, bool showsMarks);

} // namespace ExchangeLosses
