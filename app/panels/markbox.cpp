// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/markbox.h>

#include <app/diagram/marknames.h>

#include <fishbone/items/taskstatusinfo.h>

#include <QComboBox>
#include <QIcon>
#include <QSignalBlocker>

namespace {

/** Names the choices of @p box, which are added if there are none; their data counts up from
 * @p first. */
void listNames(QComboBox &box, const QString &any, const QStringList &names, int first)
{
    const QSignalBlocker blocker(&box);
    const int before = any.isEmpty() ? 0 : 1; // as many stand before the names
    const bool isEmpty = box.count() == 0;
    if (isEmpty && before > 0)
        box.addItem(any);
    if (before > 0)
        box.setItemText(0, any);
    for (int i = 0; i < int(names.size()); ++i) {
        if (isEmpty)
            box.addItem(names.at(i), first + i);
        else
            box.setItemText(before + i, names.at(i));
    }
}

} // namespace

void MarkBox::listStatuses(QComboBox &box, const QString &any)
{
    listNames(box, any, MarkNames::statuses(), MarkNames::noStatus);
    for (int row = 0; row < box.count(); ++row) {
        const QVariant status = box.itemData(row);
        const bool isListed = !box.itemIcon(row).isNull(); // in another language, with a picture
        if (!isListed && status.isValid() && status.toInt() != MarkNames::noStatus)
            box.setItemIcon(row, QIcon(TaskStatusInfo(TaskStatus(status.toInt()), 0).iconPath()));
    }
}

void MarkBox::listVerdicts(QComboBox &box, const QString &any)
{
    listNames(box, any, MarkNames::verdicts(), int(Verdict::None));
}
