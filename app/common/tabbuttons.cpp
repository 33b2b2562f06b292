// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/tabbuttons.h>

#include <QCoreApplication>
#include <QTabWidget>
#include <QToolButton>

namespace TabButtons {

void name(const QTabWidget &tabs)
{
    const auto give = [&tabs](const char *button, const QString &text) {
        if (auto *const found = tabs.findChild<QToolButton *>(QLatin1String(button)))
            found->setAccessibleName(text);
    };
    give("ScrollLeftButton", QCoreApplication::translate("TabButtons", "Scroll left"));
    give("ScrollRightButton", QCoreApplication::translate("TabButtons", "Scroll right"));
}

} // namespace TabButtons
