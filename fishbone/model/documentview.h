// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QJsonObject;
class TreeItem;

/** What a document keeps beside its tree, which stands with the fields of its head. */
namespace DocumentView {

/** That of the document of @p head, which may be null. */
QJsonObject of(const TreeItem *head);
/** Replaces it; nothing is kept of an empty one. False when @p head is null. */
bool set(TreeItem *head, const QJsonObject &view);
/** Moves it from the former head to the new one, if there is any. */
void handOn(TreeItem &from, TreeItem &to);

} // namespace DocumentView
