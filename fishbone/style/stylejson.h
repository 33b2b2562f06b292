// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

#include <fishbone/style/spearstyle.h>

class QJsonObject;

/** The looks of a state as documents have them. */
namespace StyleJson {

/** Measured by the compiler, so that the keys are there before any code runs. */
template <int size>
constexpr QLatin1String key(const char (&name)[size])
{
    return QLatin1String(name, size - 1);
}

/** What is set in @p style for @p state. */
QJsonObject fromState(const SpearStyle &style, SpearStyle::SpearState state);
/** Takes over what @p object says of @p state, and leaves the rest alone. */
void readState(SpearStyle &style, SpearStyle::SpearState state, const QJsonObject &object);

} // namespace StyleJson
