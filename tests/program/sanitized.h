// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

// gcc tells by a macro that it builds for the address sanitizer, clang by a feature.
#ifdef __has_feature
#if __has_feature(address_sanitizer)
#define FISHBONE_SANITIZED 1
#endif
#endif
#if !defined(FISHBONE_SANITIZED) && defined(__SANITIZE_ADDRESS__)
#define FISHBONE_SANITIZED 1
#endif

/**
 * @p usual, or @p sanitized where the sanitizers look on: what repeats itself or counts time does
 * so less often there, since they make it some five times as slow and each path needs them but
 * once.
 */
template <typename Number>
constexpr Number unlessSanitized([[maybe_unused]] Number usual, [[maybe_unused]] Number sanitized)
{
#ifdef FISHBONE_SANITIZED
    return sanitized;
#else
    return usual;
#endif
}
