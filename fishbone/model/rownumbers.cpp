// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/rownumbers.h>

std::atomic<qint64> RowNumbers::renewed{0};
