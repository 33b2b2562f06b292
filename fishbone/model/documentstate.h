// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

/**
 * The name of a document and whether it has unsaved changes. What is told comes from the event
 * loop, once whatever changed the document has done its work, and is what holds by then: of changes
 * that undo each other nothing is told.
 */
class DocumentState : public QObject
{
    Q_OBJECT

public:
    /** That of a new document, which is called @p file. */
    explicit DocumentState(const QString &file);

    const QString &file() const { return m_file; }
    void setFile(const QString &file);
    bool isModified() const { return m_isModified; }
    void setModified(bool modified);
    /** True until setSaved() names the document. */
    bool isUntitled() const { return m_isUntitled; }
    /** The document is called @p file and has no unsaved changes. */
    void setSaved(const QString &file);

Q_SIGNALS:
    void modifiedChanged(bool modified);
    void fileChanged(const QString &file);

private:
    void tellLater();
    void tell();

    QString m_file;
    bool m_isUntitled = true;
    bool m_isModified = false;
    QString m_toldFile; ///< as the signals have told it
    bool m_wasToldModified = false;
    bool m_willTell = false;
};
