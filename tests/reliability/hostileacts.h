// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <vector>

class HostileStage;

/** Something that is done to the stage, by a user, a host or a listener. */
struct HostileAct
{
    QString name;
    std::function<void(HostileStage &)> run;
    QList<const char *> concerned = {}; ///< the subjects that may be gone or others afterwards
    /** What goes before, while nobody listens yet. */
    std::function<void(HostileStage &)> prepare = [](HostileStage &) {};
    /** One call of the library, which tells of the selection once at the most. */
    bool isOneCall = true;
    /** Ends the model, which the toolkit does not survive while it announces a change. */
    bool endsModel = false;
};

/**
 * All operations: the editor's slots and functions, mouse, keys and drops, the model, the stack.
 */
std::vector<HostileAct> hostileOperations();
/** The operations on the model alone. */
std::vector<HostileAct> modelOperations();
/** The operations of a user's hands. */
std::vector<HostileAct> handOperations();
/** All that a listener may do. */
std::vector<HostileAct> hostileReactions();
