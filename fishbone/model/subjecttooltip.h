// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class TreeItem;

/** What the tool tip of a bone says of @p subject: its titles, who is responsible and its dates. */
QString subjectToolTip(const TreeItem &subject);
