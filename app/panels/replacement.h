// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndexList>
#include <QString>

#include <functional>
#include <memory>

class EditAttributes;
class FishModel;

/** What is to stand in the place of a text that was found. */
struct Replacement
{
    /** Hears how many of how many are done; false ends it. */
    using Progress = std::function<bool(int done, int total)>;

    QString search;
    QString text;
    Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive;

    /** Whether what was found at @p hit is anything that may be replaced. */
    static bool isPossible(const QModelIndex &hit);

    /** What becomes of @p found. */
    QString of(const QString &found) const;

    /** The step that replaces in what was found at @p hits in @p model; null when @p progress ends
     * it. */
    std::unique_ptr<EditAttributes> draft(FishModel *model, const QModelIndexList &hits,
                                          const Progress &progress) const;
};
