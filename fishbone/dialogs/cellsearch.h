// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPersistentModelIndex>

class QAbstractItemModel;
class QString;

/**
 * The cells of @p column, at any depth of @p model and parents before children, whose display text
 * ends with @p text if @p flags have Qt::MatchEndsWith, or contains it. Rows without an index, as
 * of a document without a head, are passed over. Takes no stack, however deep the model is.
 */
QList<QPersistentModelIndex> cellsWith(const QAbstractItemModel &model, int column,
                                       const QString &text, Qt::MatchFlags flags,
                                       Qt::CaseSensitivity sensitivity);
