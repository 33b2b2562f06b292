// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndex>
#include <QPointer>

#include <fishbone/model/fishinfo.h>

class FishModel;
class ShownSubject;
class TreeItem;

/** The root that was shown last, remembered across what makes its index invalid. */
class RememberedRoot
{
public:
    /** Remembers what is shown, which must be a subject of the model. */
    void remember(const ShownSubject &shown);
    /** Remembers nothing any more. */
    void forget() { *this = RememberedRoot(); }

    /** Whether it is the head of its document, whichever subject that is by now. */
    bool isHead() const { return m_isHead; }
    /** The document; null when it is gone. */
    FishInfo *document() const { return m_document; }
    /** It has moved into another document. */
    void follow(FishInfo *document) { m_document = document; }
    /** Whether @p subject is what was shown; only compared. */
    bool isSubject(const TreeItem *subject) const { return subject == m_subject; }
    /** The subject that was shown, null when it is none of @p model's any more. Linear. */
    const TreeItem *subjectIn(const FishModel &model) const;
    /** Where it stands now; invalid when it or its document is not in @p model, which may be null.
     * Linear. */
    QModelIndex indexIn(const FishModel *model) const;

private:
    QPointer<FishInfo> m_document;
    const TreeItem *m_subject = nullptr; ///< only compared: it may be gone
    bool m_isHead = false;
};
