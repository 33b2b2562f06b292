// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearpicture.h>

#include <QCoreApplication>

class TreeItem;

/** Takes out of a diagram what a picture of it shows. */
class ClearContent
{
    Q_DECLARE_TR_FUNCTIONS(ClearContent)

public:
    /** The diagram below @p head, which must not be null: @p levels levels below the categories,
     * all of them when that is negative; subjects above what is left out say how much that is. The
     * legend has the statuses that occur. Linear, without recursion. */
    static ClearPictureContent of(const TreeItem *head, int levels = -1);

    /** What the status @p status means, translated; empty for one without an icon. */
    static QString meaningOf(int status);

private:
    static void add(const TreeItem *item, int parent, ClearPictureContent &content);
};
