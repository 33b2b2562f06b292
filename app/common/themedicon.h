// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

/** The program's icons, drawn in the colour of the text around them. */
namespace ThemedIcon {

/** The icon ":/app/icons/<name>.svg" in the colours of @p palette; empty when there is none. */
QIcon icon(const QString &name, const QPalette &palette);

} // namespace ThemedIcon
