// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

class QMimeData;

/** What @p payload holds, in all its formats: the toolkit's own one ends with the drop. */
std::unique_ptr<QMimeData> payloadCopy(const QMimeData &payload);
