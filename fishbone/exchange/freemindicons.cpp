// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/freemindicons.h>

#include <fishbone/exchange/taskstatuses.h>
#include <fishbone/model/treeitem.h>

namespace {

/** What an icon says about a task. */
struct Icon
{
    QLatin1String name;
    void (TreeItem::*set)(int);
    int value;
};

const Icon icons[] = {
    {QLatin1String("full-0"), &TreeItem::setPriority, 0},
    {QLatin1String("full-1"), &TreeItem::setPriority, 1},
    {QLatin1String("full-2"), &TreeItem::setPriority, 2},
    {QLatin1String("full-3"), &TreeItem::setPriority, 3},
    {QLatin1String("full-4"), &TreeItem::setPriority, 4},
    {QLatin1String("full-5"), &TreeItem::setPriority, 5},
    {QLatin1String("full-6"), &TreeItem::setPriority, 6},
    {QLatin1String("full-7"), &TreeItem::setPriority, 7},
    {QLatin1String("full-8"), &TreeItem::setPriority, 8},
    {QLatin1String("full-9"), &TreeItem::setPriority, 9},
    {QLatin1String("button_cancel"), &TreeItem::setStatus, TaskStatuses::cancelled},
    {QLatin1String("button_ok"), &TreeItem::setStatus, TaskStatuses::finished},
    {QLatin1String("checked"), &TreeItem::setStatus, TaskStatuses::finished},
    {QLatin1String("unchecked"), &TreeItem::setStatus, TaskStatuses::waiting},
    {QLatin1String("hourglass"), &TreeItem::setStatus, TaskStatuses::waiting},
    {QLatin1String("0%"), &TreeItem::setProgress, 0},
    {QLatin1String("25%"), &TreeItem::setProgress, 25},
    {QLatin1String("50%"), &TreeItem::setProgress, 50},
    {QLatin1String("75%"), &TreeItem::setProgress, 75},
    {QLatin1String("100%"), &TreeItem::setProgress, 100},
};

} // namespace

std::optional<int> FreeMindIcons::apply(const QString &name, TreeItem &subject)
{
    for (const Icon &icon : icons) {
        if (name != icon.name)
            continue;
        (subject.*icon.set)(icon.value);
        return icon.value;
    }
    return std::nullopt;
}
