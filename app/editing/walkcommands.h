// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/editing/diagramcommands.h>

#include <QModelIndex>

#include <functional>

class QPointF;
class SpearItem;

/** The commands that select another bone: what stands in a direction as the drawing is seen, or
 * the next one in the order and the levels of the subjects. */
class WalkCommands : public DiagramCommands
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. */
    WalkCommands(DiagramSession *session, ActionSet *actions, QObject *parent);

    /** Enables the actions when a drawing is shown. */
    void updateActions() override;

private:
    using Step = std::function<QModelIndex(const SpearItem &from)>;

    void addDirections();
    void addLevels();
    void add(const char *name, const char *text, int key, const Step &step);
    void go(const Step &step);
    QPointF seenPosition(const SpearItem &spear) const;
    QModelIndex nearest(const SpearItem &from, const QPointF &direction) const;
};
