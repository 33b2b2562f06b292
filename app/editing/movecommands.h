// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/editing/diagramcommands.h>

#include <optional>

class QModelIndex;
class SpearItem;

/** The commands that move the selected bone among its siblings and between levels. */
class MoveCommands : public DiagramCommands
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. */
    MoveCommands(DiagramSession *session, ActionSet *actions, QObject *parent);

    /** Enables the actions as the selection allows. */
    void updateActions() override;

private:
    struct Place;
    using Rule = std::optional<Place> (MoveCommands::*)(const QModelIndex &bone) const;

    std::optional<Place> earlier(const QModelIndex &bone) const;
    std::optional<Place> later(const QModelIndex &bone) const;
    std::optional<Place> higher(const QModelIndex &bone) const;
    std::optional<Place> lower(const QModelIndex &bone) const;
    void showKeys();
    void move(Rule rule);
    SpearItem *movableBone() const;
};
