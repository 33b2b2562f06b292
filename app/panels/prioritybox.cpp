// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/prioritybox.h>

#include <fishbone/model/treeitem.h>

QString PriorityBox::textFromValue(int value) const
{
    return value == TreeItem::none ? tr("none") : QSpinBox::textFromValue(value);
}

int PriorityBox::valueFromText(const QString &text) const
{
    return text == tr("none") ? TreeItem::none : QSpinBox::valueFromText(text);
}

QValidator::State PriorityBox::validate(QString &text, int &position) const
{
    const QString none = tr("none");
    if (text == none)
        return QValidator::Acceptable;
    return none.startsWith(text) ? QValidator::Intermediate : QSpinBox::validate(text, position);
}
