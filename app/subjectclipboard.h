// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class DiagramSession;
class QMimeData;

/**
 * The way between the editor's copy buffer and the clipboard of the system. What is copied goes
 * there as indented text. What comes from there is pasted from the buffer, with all attributes,
 * while it is what was copied here last; any other text is read as an outline.
 */
class SubjectClipboard : public QObject
{
    Q_OBJECT

public:
    explicit SubjectClipboard(DiagramSession *session, QObject *parent = nullptr);

    /** Whether there is something to paste. */
    bool canPaste() const { return m_canPaste; }

    /** Pastes below the selected subject, in one step of the undo history. */
    void paste();

Q_SIGNALS:
    /** Something for the status bar. */
    void message(const QString &text);

private:
    void publish();
    void look();
    bool isOwn(const QMimeData &data) const;
    void pasteText(const QMimeData &data);

    DiagramSession *m_session;
    QByteArray m_copy; ///< names what was copied last
    bool m_canPaste = false;
};
