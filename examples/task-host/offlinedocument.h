// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <taskmerge.h>

#include <QByteArray>

class FishModel;
class QModelIndex;

/**
 * A diagram that leaves the data base as a document, is edited elsewhere by whatever reads the
 * format, and comes back.
 *
 * The head of the document says which revision it was written at, in a field of the host's own that
 * all editors of the format keep. What the data base has not changed since then is what both have
 * in common; of the rest nobody knows, and where the two differ there is a conflict. Tasks are
 * known by their uuids. A document without that field changes nothing silently and deletes nothing.
 */
namespace OfflineDocument {

/** The document of the diagram at @p head, as of @p revision; empty when it nests too deep. */
QByteArray write(const FishModel &model, const QModelIndex &head, qint64 revision);
/** What becomes of @p known with what @p document brings; nothing new for one that is no diagram.
 */
TaskMerge::Result merge(const TaskMap &known, const QByteArray &document);

} // namespace OfflineDocument
