// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QGraphicsItem;
class TreeItem;

/** Whether @p item is there to be pressed and has no place in pictures: the button of a bone,
 * unless it says how much is hidden. */
bool isForTheScreenOnly(const QGraphicsItem &item);

/** The subject whose title @p item shows; null for any other item. */
const TreeItem *subjectOfTitle(const QGraphicsItem &item);
