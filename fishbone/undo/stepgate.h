// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodel.h>

#include <utility>

/**
 * Lets the steps of a command through that its model can take now. While a change is announced and
 * not made yet the model takes none: a step that comes then does nothing, and the step back has
 * nothing to do either.
 */
class StepGate
{
public:
    /** Whether redo() is to be carried out on @p model, null for one that announces nothing. */
    bool letsRedo(const FishModel *model) { return lets(model, m_hasMissedUndo, m_hasMissedRedo); }
    /** Whether undo() is to be carried out. */
    bool letsUndo(const FishModel *model) { return lets(model, m_hasMissedRedo, m_hasMissedUndo); }

private:
    static bool lets(const FishModel *model, bool &hasMissedOther, bool &hasMissedThis)
    {
        const bool isInVain = std::exchange(hasMissedOther, false);
        hasMissedThis = !isInVain && model && model->isAnnouncing();
        return !isInVain && !hasMissedThis;
    }

    bool m_hasMissedRedo = false;
    bool m_hasMissedUndo = false;
};
