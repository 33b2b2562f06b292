// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>

class FishEditor;
class FishInfo;

/**
 * Whether a document is what its file has, as far as undoing and redoing can tell: it is again
 * whenever they lead back to where it was saved, unless something differs that no undo takes back.
 */
class SavedState
{
public:
    /** Of the document that @p editor shows, which has to outlive this. */
    explicit SavedState(FishEditor *editor);

    /** A subject of the document has changed. */
    void noteChange() { m_sawChange = true; }

    /** Finds out whether the document, @p shown or null, was changed by what the history does not
     * know. To be called whenever changes are complete. */
    void look(const FishInfo *shown);

    /** The document, @p shown or null, is what its file has. */
    void markSaved(const FishInfo *shown);
    /** The document differs from its file, whatever is undone. */
    void markApart() { m_isApart = true; }

    /** Whether the history stands where the document was saved, and nothing else has changed. */
    bool isSaved() const;

private:
    FishEditor *m_editor;
    std::pair<int, int> m_place; ///< in the history, at the last look
    bool m_sawChange = false;    ///< since that look
    bool m_isApart = true;       ///< whether something differs that no undo takes back
};
