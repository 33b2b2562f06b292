// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/undo/structuralcommands.h>

#include <QMetaType>

#include <functional>

using MakeCommand = std::function<UndoCommand *(QAbstractItemModel *, const QModelIndex &)>;
Q_DECLARE_METATYPE(MakeCommand)

namespace TestSupport {

template <typename Command>
inline UndoCommand *make(QAbstractItemModel *model, const QModelIndex &index)
{
    return new Command(model, index);
}

template <>
inline UndoCommand *make<InsertFree>(QAbstractItemModel *model, const QModelIndex &)
{
    return new InsertFree(model);
}

} // namespace TestSupport
