// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/subjectmarks.h>
#include <fishbone/model/treeitem.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/** What lists and fields call the values that a subject is marked with, in the language of now. */
class MarkNames
{
    Q_DECLARE_TR_FUNCTIONS(MarkNames)

public:
    static constexpr int noStatus = TreeItem::none; ///< the status of a subject without one

    /** Of all statuses in the order of their numbers, noStatus first. */
    static QStringList statuses();
    /** Of all verdicts in the order of their numbers. */
    static QStringList verdicts();

    /** Of @p status; empty for a number without a meaning. */
    static QString of(int status) { return statuses().value(status - noStatus); }
    static QString of(Verdict verdict) { return verdicts().value(int(verdict)); }
};
