// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class UndoStack;

/** What the program calls the steps of a history: what was done, and to what. */
class StepNames
{
    Q_DECLARE_TR_FUNCTIONS(StepNames)

public:
    /** Of all commands of @p stack, the oldest one first. */
    static QStringList of(const UndoStack &stack);
    /** Of a step named @p name that is about subjects with these @p titles. A long title is cut. */
    static QString of(const QString &name, const QStringList &titles);
};
