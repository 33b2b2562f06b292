// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <taskfields.h>

#include <fishbone/model/subjectattribute.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/editattributes.h>

QJsonObject TaskFields::of(const TreeItem &subject)
{
    QJsonObject fields = EditAttributes::stateOf(subject);
    for (const SubjectAttribute &attribute : SubjectAttribute::all()) {
        const QJsonValue value = fields.value(attribute.key());
        const bool isEmpty = value.isNull() || (value.isString() && value.toString().isEmpty());
        if (isEmpty || !attribute.uses().testFlag(SubjectAttribute::Edited))
            fields.remove(attribute.key());
    }
    return fields;
}

QJsonObject TaskFields::normalized(const QJsonObject &fields)
{
    return of(TreeItem(fields));
}
