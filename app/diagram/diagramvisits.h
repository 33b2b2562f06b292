// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/diagram/drawingstate.h>

#include <QHash>
#include <QModelIndexList>
#include <QString>

class FishEditor;
class FishInfo;
class FishModel;

/** The subjects that were shown as diagrams of their own, and how their drawings were left. */
class DiagramVisits
{
public:
    /** @p editor shows @p model; both have to outlive this. */
    DiagramVisits(FishModel *model, FishEditor *editor);

    /** Shows the diagram below @p root as it was left. */
    void show(const QModelIndex &root);

    /** The subjects of @p document, which may be null, that it remembers as visited, the oldest
     * first. Of those with one uuid the first one counts. */
    QModelIndexList subjectsOf(const FishInfo *document) const;

private:
    QString shownUuid() const;

    FishModel *m_model;
    FishEditor *m_editor;
    QHash<QString, DrawingState> m_left; ///< how the drawings were, by the uuids of their roots
};
