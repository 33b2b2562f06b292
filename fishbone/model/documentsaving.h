// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

class FishInfo;

/** How a document is written, and what its user is asked about that. */
class DocumentSaving
{
public:
    /** That of @p document, which must live as long. */
    explicit DocumentSaving(FishInfo &document)
        : m_document(document)
    {
    }

    /** Writes the document, readable for those at most who may read @p origin; empty for all. */
    bool write(const QString &fileName, const QString &origin);
    /** Why the last write() failed, in the user's language; empty when it did not. */
    const QString &error() const { return m_error; }
    /** Asks for a file and writes it. */
    bool writeAs();
    /** Asks whether to save unsaved changes, which @p save does; false when the user cancels or it
     * fails. Both may end the document. */
    bool ask(const std::function<bool()> &save);
    /** Writes the autosave file, which gets a name when it has none. */
    bool autosave();

private:
    QString newAutoSaveFile() const;

    FishInfo &m_document;
    QString m_error;
};
