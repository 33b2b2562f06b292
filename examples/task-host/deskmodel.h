// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodel.h>

/**
 * The tasks of the desk, in the library's mode for tasks: in that editors offer sub-tasks, details
 * and a diagram of a task's own, and say when tasks have another parent. Heads read as any other
 * task, without the counts that the mode adds.
 */
class DeskModel : public FishModel
{
    Q_OBJECT

public:
    using FishModel::FishModel;

    /** As the base class has it, but for the counts. */
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
};
