// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

class DiagramSession;
class ExchangeReport;
class FishEditor;
class QMimeData;
class TreeItem;

/**
 * The way between the editor's copy buffer and the clipboard of the system. What is copied goes
 * there as indented text and, for other tabs and windows of this program, with all attributes. What
 * comes from there is pasted from the buffer while it is what the same editor copied last; any
 * other text, or a copied file, is read as an outline. Where a text may be several things the user
 * is asked.
 */
class SubjectClipboard : public QObject
{
    Q_OBJECT

public:
    explicit SubjectClipboard(DiagramSession *session, QObject *parent = nullptr);

    /** From now on copies from and pastes into the diagram of @p session. */
    void setSession(DiagramSession *session);

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
    void pasteCopy(const QMimeData &data);
    void pasteText(const QMimeData &data);
    std::unique_ptr<TreeItem> branchesOf(const QMimeData &data, QString &reason,
                                         ExchangeReport &report) const;

    DiagramSession *m_session;
    QPointer<FishEditor> m_source; ///< what was copied from last
    QByteArray m_copy;             ///< what was copied last
    bool m_canPaste = false;
};
