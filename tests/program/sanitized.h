// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/**
 * @p usual, or @p sanitized where the sanitizers look on: what repeats itself or counts time does
 * so less often there, since they make it some five times as slow and each path needs them but
 * once.
 */
template <typename Number>
constexpr Number unlessSanitized(Number usual, Number sanitized)
{
#ifdef __SANITIZE_ADDRESS__
    Q_UNUSED(usual)
    return sanitized;
#else
    Q_UNUSED(sanitized)
    return usual;
#endif
}
