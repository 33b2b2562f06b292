// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/subjecttooltip.h>

#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>

QString subjectToolTip(const TreeItem &subject)
{
    QString text;
    if (!subject.showid().isEmpty())
        text += subject.showid() + QLatin1Char(' ');
    text += subject.title();
    const auto addLine = [&text](const QString &label, const QString &value) {
        text += QLatin1String("\n ") + label + value;
    };
    if (!subject.managerName().isEmpty())
        addLine(TreeItem::tr("负责人:"), subject.managerName());
    if (subject.createDate() != 0)
        addLine(TreeItem::tr("创建时间:"),
                SystemHelper::stringFromDateTimeMsecs(subject.createDate()));
    if (subject.planEndDate() != 0)
        addLine(TreeItem::tr("截止时间:"),
                SystemHelper::stringFromDateTimeMsecs(subject.planEndDate()));
    return text;
}
