// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class FishEditor;

/** Ends the autosave that @p editor begins by itself: it writes also what is not modified, and
 * tells nobody whether it could. */
void endAutosave(FishEditor &editor);
