// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/documentview.h>

#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/treeitem.h>

#include <QJsonObject>

QJsonObject DocumentView::of(const TreeItem *head)
{
    return head ? head->otherFields().value(JsonNodes::viewKey).toObject() : QJsonObject();
}

bool DocumentView::set(TreeItem *head, const QJsonObject &view)
{
    if (!head)
        return false;
    QJsonObject fields = head->otherFields();
    if (view.isEmpty())
        fields.remove(JsonNodes::viewKey);
    else
        fields.insert(JsonNodes::viewKey, view);
    head->setOtherFields(fields);
    return true;
}

void DocumentView::handOn(TreeItem &from, TreeItem &to)
{
    QJsonObject left = from.otherFields();
    const QJsonValue view = left.take(JsonNodes::viewKey);
    if (view.isUndefined())
        return;
    from.setOtherFields(left);
    QJsonObject taken = to.otherFields();
    taken.insert(JsonNodes::viewKey, view);
    to.setOtherFields(taken);
}
